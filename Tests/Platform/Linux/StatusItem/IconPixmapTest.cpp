#include "Platform/Linux/StatusItem/IconPixmap.h"

#include <QColor>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(IconPixmap, HasAlphaRedGreenAndBlueOfEachPixelLineByLine)
{
    QImage image(2, 2, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, QColor(1, 2, 3, 4));
    image.setPixelColor(1, 0, QColor(5, 6, 7, 255));
    image.setPixelColor(0, 1, QColor(250, 251, 252, 253));
    image.setPixelColor(1, 1, QColor(0, 0, 0, 0));
    const QByteArray pixels = QByteArray::fromHex("04010203 ff050607 fdfafbfc 00000000");
    EXPECT_EQ(IconPixmap::from(image), (IconPixmap{2, 2, pixels}));
}

TEST(IconPixmap, ColoursAreNotMultipliedWithAlphaWhateverTheImageHolds)
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(255, 0, 255, 51));
    EXPECT_EQ(IconPixmap::from(image).pixels, QByteArray::fromHex("33ff00ff"));
    // Lines of an image with less than four bytes a pixel are padded.
    QImage opaque(3, 2, QImage::Format_RGB888);
    opaque.fill(QColor(16, 32, 48));
    EXPECT_EQ(IconPixmap::from(opaque), (IconPixmap{3, 2, QByteArray::fromHex("ff102030").repeated(6)}));
}

TEST(IconPixmap, AnImageThatCouldNotBeDrawnHasNoPixels)
{
    EXPECT_EQ(IconPixmap::from(QImage()), IconPixmap());
}

} // namespace
} // namespace vantrel
