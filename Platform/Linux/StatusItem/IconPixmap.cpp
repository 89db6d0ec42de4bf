#include "Platform/Linux/StatusItem/IconPixmap.h"

#include <QDBusMetaType>
#include <QtEndian>

namespace vantrel {

IconPixmap IconPixmap::from(const QImage &image)
{
    const QImage source = image.convertToFormat(QImage::Format_ARGB32);
    const qsizetype lineBytes = source.width() * qsizetype{4};
    IconPixmap pixmap{source.width(), source.height(), QByteArray(lineBytes * source.height(), Qt::Uninitialized)};
    for (int line = 0; line < source.height(); ++line)
        qToBigEndian<quint32>(source.constScanLine(line), source.width(), pixmap.pixels.data() + (line * lineBytes));
    return pixmap;
}

// The signatures that Qt DBus asks for.
// NOLINTBEGIN(bugprone-return-const-ref-from-parameter)
QDBusArgument &operator<<(QDBusArgument &argument, const IconPixmap &pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, IconPixmap &pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const StatusToolTip &toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusToolTip &toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}
// NOLINTEND(bugprone-return-const-ref-from-parameter)

void registerIconPixmapTypes()
{
    qDBusRegisterMetaType<IconPixmap>();
    qDBusRegisterMetaType<QList<IconPixmap>>();
    qDBusRegisterMetaType<StatusToolTip>();
}

} // namespace vantrel
