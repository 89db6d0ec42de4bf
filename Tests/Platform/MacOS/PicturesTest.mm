#include "Platform/MacOS/BundleIcons.h"
#include "Platform/MacOS/MacSymbolImages.h"
#include "Platform/MacOS/PictureCanvas.h"
#include "Tests/Platform/MacOS/StandInBundle.h"

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Of the pixels that are opaque; invalid when there are none, or several.
QColor onlyOpaqueColor(const QImage &image)
{
    QColor found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() < 255 || color == found)
                continue;
            if (found.isValid())
                return {};
            found = color;
        }
    }
    return found;
}

TEST(PictureCanvas, AUnitIsAPixelAndTheOriginIsBelow)
{
    const QImage image = drawnPicture(4, [] {
        [[NSColor colorWithSRGBRed:1 green:0 blue:0 alpha:1] setFill];
        NSRectFill(CGRect{{0, 0}, {2, 1}});
    });
    ASSERT_EQ(image.size(), QSize(4, 4));
    EXPECT_EQ(image.pixelColor(0, 3), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(1, 3), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(2, 3).alpha(), 0);
    EXPECT_EQ(image.pixelColor(0, 2).alpha(), 0);
}

TEST(PictureCanvas, LessThanAPixelIsNoPicture)
{
    EXPECT_TRUE(drawnPicture(0, [] { ADD_FAILURE(); }).isNull());
}

TEST(MacSymbolImages, ASymbolHasTheSizeAndTheOneColorAsked)
{
    const QImage image = MacSymbolImages().image(u"eye.slash"_s, 64, QColor(0, 0, 255));
    EXPECT_EQ(image.size(), QSize(64, 64));
    EXPECT_EQ(onlyOpaqueColor(image), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
}

TEST(MacSymbolImages, UnknownNamesHaveNoSymbol)
{
    EXPECT_TRUE(MacSymbolImages().image(u"no.such.symbol"_s, 64, Qt::blue).isNull());
}

TEST(BundleIcons, AnApplicationHasAnIconOfTheSizeAskedWithOrWithoutAFileOfItsOwn)
{
    const test::StandInBundle plain(u"com.slimjet.browser"_s);
    const QUrl finder = QUrl::fromLocalFile(u"/System/Library/CoreServices/Finder.app"_s);
    const QImage image = BundleIcons().icon(finder, 128);
    EXPECT_EQ(image.size(), QSize(128, 128));
    EXPECT_GT(image.pixelColor(64, 64).alpha(), 0);
    const QImage plainImage = BundleIcons().icon(plain.url(), 128);
    EXPECT_EQ(plainImage.size(), QSize(128, 128));
    EXPECT_NE(plainImage, image);
}

TEST(BundleIcons, WhatIsNotThereHasNone)
{
    EXPECT_TRUE(BundleIcons().icon(QUrl::fromLocalFile(u"/no/such.app"_s), 128).isNull());
}

} // namespace
} // namespace vantrel
