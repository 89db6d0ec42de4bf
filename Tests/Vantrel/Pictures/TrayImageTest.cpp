#include "Vantrel/Pictures/TrayImage.h"

#include "Tests/Vantrel/Pictures/Pixels.h"

#include <gtest/gtest.h>

#include <array>

namespace vantrel {
namespace {

constexpr std::array<int, 7> sizes{16, 22, 24, 32, 44, 48, 64};
constexpr double symbolContrast = 3;
constexpr double textContrast = 4.5;
/// The share of the square that has to stand out.
constexpr double least = 0.1;

TEST(TrayImage, IsASquareOfThePixelsAskedFor)
{
    for (const TrayColor color : {TrayColor::light, TrayColor::dark, TrayColor::unknown}) {
        for (const int pixels : sizes)
            EXPECT_EQ(trayImage(pixels, color).size(), QSize(pixels, pixels));
        EXPECT_TRUE(trayImage(0, color).isNull());
    }
}

TEST(TrayImage, LightIsReadableOnDarkPanels)
{
    for (const QColor &panel : {QColor(Qt::black), QColor(0x1d, 0x1d, 0x20), QColor(0x31, 0x36, 0x3b)}) {
        for (const int pixels : sizes)
            EXPECT_GT(test::readableShare(trayImage(pixels, TrayColor::light), panel, textContrast), 2 * least);
    }
}

TEST(TrayImage, DarkIsReadableOnLightPanels)
{
    for (const QColor &panel : {QColor(Qt::white), QColor(0xef, 0xf0, 0xf1), QColor(0xd6, 0xd6, 0xd6)}) {
        for (const int pixels : sizes)
            EXPECT_GT(test::readableShare(trayImage(pixels, TrayColor::dark), panel, textContrast), 2 * least);
    }
}

TEST(TrayImage, UnknownIsReadableOnAnyPanel)
{
    for (int level = 0; level <= 255; level += 15) {
        const QColor panel(level, level, level);
        for (const int pixels : sizes) {
            EXPECT_GT(test::readableShare(trayImage(pixels, TrayColor::unknown), panel, symbolContrast), least)
                << "level " << level << ", " << pixels << " pixels";
        }
    }
    for (const QColor &panel : {QColor(Qt::black), QColor(Qt::white)}) {
        for (const int pixels : sizes)
            EXPECT_GT(test::readableShare(trayImage(pixels, TrayColor::unknown), panel, textContrast), least);
    }
}

TEST(TrayImage, TheOneColourAloneWouldNotDoForUnknown)
{
    for (const int pixels : sizes) {
        EXPECT_EQ(test::readableShare(trayImage(pixels, TrayColor::light), Qt::white, textContrast), 0);
        EXPECT_EQ(test::readableShare(trayImage(pixels, TrayColor::dark), Qt::black, textContrast), 0);
    }
}

TEST(TrayImage, TheOutlineIsWithinTheSquare)
{
    for (const int pixels : sizes) {
        const QImage image = trayImage(pixels, TrayColor::unknown);
        for (int i = 0; i < pixels; ++i) {
            EXPECT_LT(image.pixelColor(i, 0).alpha(), 200) << pixels;
            EXPECT_LT(image.pixelColor(pixels - 1, i).alpha(), 200) << pixels;
        }
        const QRectF bounds = test::opaqueBounds(image);
        EXPECT_NEAR(bounds.center().x(), pixels / 2.0, 0.05 * pixels) << pixels;
        EXPECT_NEAR(bounds.center().y(), pixels / 2.0, 0.05 * pixels) << pixels;
    }
}

} // namespace
} // namespace vantrel
