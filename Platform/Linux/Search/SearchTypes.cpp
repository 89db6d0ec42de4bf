#include "Platform/Linux/Search/SearchTypes.h"

#include <QDBusMetaType>

using namespace Qt::StringLiterals;

namespace vantrel {

SerializedIcon SerializedIcon::ofFile(const QByteArray &content)
{
    return {u"bytes"_s, QDBusVariant(content)};
}

IconData IconData::from(const QImage &image)
{
    constexpr int channelsOfRGBA = 4;
    constexpr int bitsPerByte = 8;
    const QImage source = image.convertToFormat(QImage::Format_RGBA8888);
    return {.width = source.width(),
            .height = source.height(),
            .rowStride = static_cast<int>(source.bytesPerLine()),
            .hasAlpha = true,
            .bitsPerSample = bitsPerByte,
            .channels = channelsOfRGBA,
            .pixels = {reinterpret_cast<const char *>(source.constBits()), source.sizeInBytes()}};
}

// The signatures that Qt DBus asks for.
// NOLINTBEGIN(bugprone-return-const-ref-from-parameter)
QDBusArgument &operator<<(QDBusArgument &argument, const SerializedIcon &icon)
{
    argument.beginStructure();
    argument << icon.kind << icon.value;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, SerializedIcon &icon)
{
    argument.beginStructure();
    argument >> icon.kind >> icon.value;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const IconData &icon)
{
    argument.beginStructure();
    argument << icon.width << icon.height << icon.rowStride << icon.hasAlpha << icon.bitsPerSample << icon.channels
             << icon.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, IconData &icon)
{
    argument.beginStructure();
    argument >> icon.width >> icon.height >> icon.rowStride >> icon.hasAlpha >> icon.bitsPerSample >> icon.channels >>
        icon.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const RunnerMatch &match)
{
    argument.beginStructure();
    argument << match.id << match.text << match.iconName << match.type << match.relevance << match.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerMatch &match)
{
    argument.beginStructure();
    argument >> match.id >> match.text >> match.iconName >> match.type >> match.relevance >> match.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const RunnerAction &action)
{
    argument.beginStructure();
    argument << action.id << action.text << action.iconName;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerAction &action)
{
    argument.beginStructure();
    argument >> action.id >> action.text >> action.iconName;
    argument.endStructure();
    return argument;
}
// NOLINTEND(bugprone-return-const-ref-from-parameter)

void registerSearchTypes()
{
    qDBusRegisterMetaType<SerializedIcon>();
    qDBusRegisterMetaType<IconData>();
    qDBusRegisterMetaType<RunnerMatch>();
    qDBusRegisterMetaType<QList<RunnerMatch>>();
    qDBusRegisterMetaType<RunnerAction>();
    qDBusRegisterMetaType<QList<RunnerAction>>();
    qDBusRegisterMetaType<QList<QVariantMap>>();
}

} // namespace vantrel
