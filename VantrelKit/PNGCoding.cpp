#include "VantrelKit/PNGCoding.h"

#include <QScopeGuard>

#include <png.h>

namespace vantrel {
namespace {

/// As Qt has it for pictures of all kinds.
constexpr qint64 maximumBytes = qint64{128} * 1024 * 1024;
constexpr qint64 bytesPerPixel = 4;

/// What QImage calls ARGB32 is blue, green, red, alpha in this order on little-endian machines.
constexpr png_uint_32 format = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;

png_image emptyControl()
{
    png_image control{};
    control.version = PNG_IMAGE_VERSION;
    return control;
}

} // namespace

bool PNGCoding::isPNG(QByteArrayView file)
{
    return file.startsWith("\x89PNG\r\n\x1a\n");
}

QImage PNGCoding::decoded(QByteArrayView file)
{
    png_image control = emptyControl();
    const auto guard = qScopeGuard([&control] { png_image_free(&control); });
    if (png_image_begin_read_from_memory(&control, file.data(), static_cast<size_t>(file.size())) == 0)
        return {};
    control.format = format;
    if (qint64{control.width} * qint64{control.height} > maximumBytes / bytesPerPixel)
        return {};
    QImage picture(static_cast<int>(control.width), static_cast<int>(control.height), QImage::Format_ARGB32);
    if (picture.isNull() || png_image_finish_read(&control, nullptr, picture.bits(),
                                                  static_cast<png_int_32>(picture.bytesPerLine()), nullptr) == 0)
        return {};
    return picture;
}

QByteArray PNGCoding::encoded(const QImage &picture)
{
    if (picture.isNull())
        return {};
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    png_image control = emptyControl();
    control.width = static_cast<png_uint_32>(pixels.width());
    control.height = static_cast<png_uint_32>(pixels.height());
    control.format = format;
    control.flags = PNG_IMAGE_FLAG_FAST;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(control);
    QByteArray file(static_cast<qsizetype>(size), Qt::Uninitialized);
    const auto stride = static_cast<png_int_32>(pixels.bytesPerLine());
    if (png_image_write_to_memory(&control, file.data(), &size, 0, pixels.constBits(), stride, nullptr) == 0)
        return {};
    file.truncate(static_cast<qsizetype>(size));
    file.squeeze();
    return file;
}

} // namespace vantrel
