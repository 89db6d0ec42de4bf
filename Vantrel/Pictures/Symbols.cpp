#include "Vantrel/Pictures/Symbols.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Small sizes have drawings of their own, whose edges lie between that size's pixels.
QString drawingFor(const QString &name, int pixels)
{
    const QString forSize = u":/vantrel/symbols/%1-%2.svg"_s.arg(name).arg(pixels);
    return QFile::exists(forSize) ? forSize : u":/vantrel/symbols/%1.svg"_s.arg(name);
}

} // namespace

QImage drawnImage(const QString &name, int pixels)
{
    const QString path = drawingFor(name, pixels);
    if (pixels < 1 || !QFile::exists(path))
        return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(path).render(&painter, QRectF(0, 0, pixels, pixels));
    return image;
}

QImage symbolImage(const QString &name, int pixels, const QColor &color)
{
    QImage image = drawnImage(name, pixels);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

} // namespace vantrel
