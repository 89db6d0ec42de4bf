#include "Platform/Linux/StatusItem/PNGCache.h"

#include "Tests/Platform/Linux/StatusItem/MenuSamples.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(PNGCache, TheFileHoldsThePicture)
{
    PNGCache cache;
    const QImage picture = test::square(32, 0x80102030);
    const QImage read = QImage::fromData(cache.encoded(picture), "PNG");
    EXPECT_EQ(read.size(), QSize(32, 32));
    EXPECT_EQ(read.pixel(31, 31), picture.convertToFormat(QImage::Format_ARGB32).pixel(31, 31));
}

TEST(PNGCache, APictureIsEncodedOnceAsLongAsEachMenuHasIt)
{
    PNGCache cache;
    const QImage picture = test::square(8, 0xff102030);
    const QByteArray first = cache.encoded(picture);
    EXPECT_EQ(cache.encoded(QImage(picture)).constData(), first.constData());
    for (int menu = 0; menu < 3; ++menu) {
        cache.startMenu();
        EXPECT_EQ(cache.encoded(picture).constData(), first.constData());
    }
}

TEST(PNGCache, APictureThatAMenuDidNotHaveIsForgotten)
{
    PNGCache cache;
    const QImage picture = test::square(8, 0xff102030);
    const QByteArray first = cache.encoded(picture);
    cache.startMenu();
    cache.startMenu();
    const QByteArray second = cache.encoded(picture);
    EXPECT_EQ(second, first);
    EXPECT_NE(second.constData(), first.constData());
}

TEST(PNGCache, APictureWithoutPixelsIsNoFile)
{
    EXPECT_EQ(PNGCache().encoded(QImage()), QByteArray());
}

} // namespace
} // namespace vantrel
