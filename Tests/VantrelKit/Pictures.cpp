#include "Tests/VantrelKit/Pictures.h"

#include <QBuffer>
#include <QColor>
#include <QPainter>

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <limits>

namespace vantrel::test {
namespace {

struct Field {
    char letter;
    QColor colour;
};

const std::array<Field, 4> &fields()
{
    static const std::array<Field, 4> table{{{'r', Qt::red}, {'g', Qt::green}, {'b', Qt::blue}, {'w', Qt::white}}};
    return table;
}

/// The field whose colour is nearest: JPEG changes colours a little.
char fieldOf(const QColor &colour)
{
    char nearest = '?';
    int smallest = std::numeric_limits<int>::max();
    for (const Field &field : fields()) {
        const int distance = std::abs(field.colour.red() - colour.red()) +
                             std::abs(field.colour.green() - colour.green()) +
                             std::abs(field.colour.blue() - colour.blue());
        if (distance < smallest) {
            smallest = distance;
            nearest = field.letter;
        }
    }
    return nearest;
}

} // namespace

QImage fourFields(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const int halfWidth = size.width() / 2;
    const int halfHeight = size.height() / 2;
    painter.fillRect(0, 0, halfWidth, halfHeight, fields()[0].colour);
    painter.fillRect(halfWidth, 0, size.width() - halfWidth, halfHeight, fields()[1].colour);
    painter.fillRect(0, halfHeight, halfWidth, size.height() - halfHeight, fields()[2].colour);
    painter.fillRect(halfWidth, halfHeight, size.width() - halfWidth, size.height() - halfHeight, fields()[3].colour);
    return image;
}

QByteArray picture(QSize size, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
    EXPECT_TRUE(fourFields(size).save(&buffer, format, 100)) << "Qt writes no " << format;
    return bytes;
}

QByteArray withOrientation(const QByteArray &jpeg, quint8 orientation)
{
    EXPECT_TRUE(jpeg.startsWith("\xff\xd8"));
    // The segment's marker and length; "Exif"; a TIFF header, big-endian, with its directory at byte 8; the directory
    // of one entry: orientation (0x0112), one 16-bit number; no further directory.
    QByteArray segment("\xff\xe1\x00\x22"
                       "Exif\x00\x00"
                       "MM\x00\x2a\x00\x00\x00\x08"
                       "\x00\x01"
                       "\x01\x12\x00\x03\x00\x00\x00\x01\x00\x00\x00\x00"
                       "\x00\x00\x00\x00",
                       36);
    segment[29] = static_cast<char>(orientation);
    return jpeg.first(2) + segment + jpeg.sliced(2);
}

QByteArray animatedGif()
{
    const QByteArray header("GIF89a\x01\x00\x01\x00\x80\x00\x00\xff\x00\x00\x00\x00\xff", 19);
    const QByteArray frame("\x2c\x00\x00\x00\x00\x01\x00\x01\x00\x00", 10);
    const QByteArray firstColour("\x02\x02\x44\x01\x00", 5);
    const QByteArray secondColour("\x02\x02\x4c\x01\x00", 5);
    return header + frame + firstColour + frame + secondColour + ";";
}

std::string corners(const QImage &image)
{
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    std::string letters;
    for (const QPoint &point : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
        letters += fieldOf(image.pixelColor(point));
    return letters;
}

QSize sizeOf(const std::optional<QByteArray> &png)
{
    return png ? QImage::fromData(*png, "PNG").size() : QSize();
}

} // namespace vantrel::test
