#include "VantrelKit/PNGCoding.h"

#include "Tests/VantrelKit/Pictures.h"

#include <QBuffer>
#include <QColorSpace>
#include <QtEndian>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

/// Every pixel another colour, some of them transparent.
QImage colourful(QSize size)
{
    QImage picture(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, qRgba(x * 7, y * 5, x ^ y, 255 - (x * y) % 256));
    }
    return picture;
}

TEST(PNGCoding, WhatIsWrittenIsReadAgainPixelByPixel)
{
    for (const QSize size : {QSize(1, 1), QSize(3, 2), QSize(32, 32), QSize(257, 131)}) {
        const QByteArray file = PNGCoding::encoded(colourful(size));
        EXPECT_TRUE(PNGCoding::isPNG(file));
        EXPECT_EQ(PNGCoding::decoded(file), colourful(size));
        QImage readByQt = QImage::fromData(file, "PNG");
        EXPECT_EQ(readByQt.colorSpace(), QColorSpace(QColorSpace::SRgb));
        readByQt.setColorSpace({});
        EXPECT_EQ(readByQt.convertToFormat(QImage::Format_ARGB32), colourful(size));
    }
}

TEST(PNGCoding, PicturesOfEveryKindAreWritten)
{
    for (const auto format : {QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB32, QImage::Format_RGB888,
                              QImage::Format_Grayscale8, QImage::Format_Mono, QImage::Format_Indexed8}) {
        const QImage picture = test::fourFields({16, 16}).convertToFormat(format);
        EXPECT_EQ(PNGCoding::decoded(PNGCoding::encoded(picture)), picture.convertToFormat(QImage::Format_ARGB32));
    }
    EXPECT_EQ(PNGCoding::encoded(QImage()), QByteArray());
}

TEST(PNGCoding, FilesOfEveryKindAreRead)
{
    for (const auto format : {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale8,
                              QImage::Format_RGB888, QImage::Format_RGBA64}) {
        QImage picture = test::fourFields({16, 16}).convertToFormat(format);
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        ASSERT_TRUE(picture.save(&file, "PNG"));
        EXPECT_EQ(PNGCoding::decoded(file.data()), picture.convertToFormat(QImage::Format_ARGB32));
    }
}

TEST(PNGCoding, ADamagedFileIsNoPicture)
{
    const QByteArray file = PNGCoding::encoded(colourful({40, 40}));
    EXPECT_TRUE(PNGCoding::decoded({}).isNull());
    EXPECT_TRUE(PNGCoding::decoded(QByteArrayView("GIF89a")).isNull());
    EXPECT_FALSE(PNGCoding::isPNG(QByteArrayView("\x89PNG")));
    for (qsizetype length = 0; length < file.size() - 12; length += 7)
        EXPECT_TRUE(PNGCoding::decoded(QByteArrayView(file).first(length)).isNull()) << length;
    QByteArray flipped = file;
    flipped[file.size() / 2] = static_cast<char>(~flipped.at(file.size() / 2));
    EXPECT_TRUE(PNGCoding::decoded(flipped).isNull());
}

TEST(PNGCoding, APictureThatWouldTakeAllMemoryIsNone)
{
    // The header alone says how large it is; its checksum is that of 100,000 by 100,000 pixels.
    QByteArray file = PNGCoding::encoded(colourful({1, 1}));
    constexpr qsizetype width = 16;
    constexpr qsizetype checksum = 29;
    for (const qsizetype place : {width, width + 4})
        qToBigEndian<quint32>(100'000, file.data() + place);
    quint32 crc = 0xffffffff;
    for (const char byte : file.mid(12, 17)) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xedb88320 : 0);
    }
    qToBigEndian<quint32>(~crc, file.data() + checksum);
    EXPECT_TRUE(PNGCoding::isPNG(file));
    EXPECT_TRUE(PNGCoding::decoded(file).isNull());
}

} // namespace
} // namespace vantrel
