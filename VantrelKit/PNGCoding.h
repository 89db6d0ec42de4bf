#pragma once

#include <QByteArray>
#include <QImage>

/// PNG files by libpng itself, which Qt uses as well: to find out what reads or writes one, Qt loads its plugins for
/// all other formats first, and keeps them. From any thread.
namespace vantrel::PNGCoding {

/// Whether the file starts as every PNG file does (ISO/IEC 15948).
[[nodiscard]] bool isPNG(QByteArrayView file);

/// Null when the file is damaged or the picture larger than anything that belongs into a menu.
[[nodiscard]] QImage decoded(QByteArrayView file);

/// Empty for a picture without pixels. Written with little effort: the files are small and soon read again.
[[nodiscard]] QByteArray encoded(const QImage &picture);

} // namespace vantrel::PNGCoding
