#include "VantrelKit/AvatarThumbnail.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <algorithm>

namespace vantrel {
namespace {

/// No side becomes shorter than one pixel, however long and thin the picture is.
QSize thumbnailSize(QSize size)
{
    const int longer = std::max(size.width(), size.height());
    if (longer <= avatarThumbnailSize)
        return size;
    return size.scaled(avatarThumbnailSize, avatarThumbnailSize, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

} // namespace

std::optional<QByteArray> avatarThumbnailPNG(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QImageReader reader(path);
    // Browsers name these files without an extension, or with the wrong one.
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QImage picture = reader.read();
    if (picture.isNull())
        return std::nullopt;
    const QSize size = thumbnailSize(picture.size());
    const QImage thumbnail =
        size == picture.size() ? picture : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!thumbnail.save(&buffer, "PNG"))
        return std::nullopt;
    return png;
}

} // namespace vantrel
