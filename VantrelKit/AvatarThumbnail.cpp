#include "VantrelKit/AvatarThumbnail.h"

#include "VantrelKit/PNGCoding.h"
#include "VantrelKit/PictureDecoding.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>

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
    QFile file(path);
    const QImage picture = file.open(QIODevice::ReadOnly) ? decodedPicture(file) : QImage();
    if (picture.isNull())
        return std::nullopt;
    const QSize size = thumbnailSize(picture.size());
    const QImage thumbnail =
        size == picture.size() ? picture : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QByteArray png = PNGCoding::encoded(thumbnail);
    return png.isEmpty() ? std::nullopt : std::optional(png);
}

} // namespace vantrel
