#include "VantrelKit/PictureDecoding.h"

#include "VantrelKit/PNGCoding.h"

#include <QImageReader>

namespace vantrel {
namespace {

/// Far more than a picture of a profile takes.
constexpr qint64 maximumFile = qint64{64} * 1024 * 1024;
constexpr qint64 longestSignature = 16;

} // namespace

QImage decodedPicture(QIODevice &file)
{
    // Most are.
    if (PNGCoding::isPNG(file.peek(longestSignature)))
        return file.size() > maximumFile ? QImage() : PNGCoding::decoded(file.readAll());
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return reader.read();
}

} // namespace vantrel
