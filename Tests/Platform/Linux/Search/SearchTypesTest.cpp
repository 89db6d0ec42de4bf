#include "Platform/Linux/Search/SearchTypes.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(IconData, HasThePixelsRowByRowRedFirstAndNotPremultiplied)
{
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixelColor(0, 0, QColor(255, 128, 0, 255));
    image.setPixelColor(1, 0, QColor(255, 255, 255, 0));
    const IconData icon = IconData::from(image);
    EXPECT_EQ(icon.width, 2);
    EXPECT_EQ(icon.height, 1);
    EXPECT_EQ(icon.rowStride, 8);
    EXPECT_TRUE(icon.hasAlpha);
    EXPECT_EQ(icon.bitsPerSample, 8);
    EXPECT_EQ(icon.channels, 4);
    EXPECT_EQ(icon.pixels, QByteArray("\xff\x80\x00\xff\x00\x00\x00\x00", 8));
}

TEST(IconData, OfNoImageIsEmpty)
{
    const IconData icon = IconData::from({});
    EXPECT_EQ(icon.width, 0);
    EXPECT_TRUE(icon.pixels.isEmpty());
}

} // namespace
} // namespace vantrel
