#include "Platform/MacOS/BundleIcons.h"
#include "Platform/MacOS/MacSymbolImages.h"
#include "Platform/MacOS/PictureCanvas.h"
#include "Tests/Contract/ApplicationIconsContract.h"
#include "Tests/Contract/SymbolImagesContract.h"
#include "Tests/Platform/MacOS/StandInBundle.h"

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QUrl finder = QUrl::fromLocalFile(u"/System/Library/CoreServices/Finder.app"_s);

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

TEST(BundleIcons, AnIconHasTheSizeAskedForWithOrWithoutAFileOfItsOwn)
{
    const test::StandInBundle plain(u"com.slimjet.browser"_s);
    for (const QUrl &application : {finder, plain.url()})
        EXPECT_EQ(BundleIcons().icon(application, 100).size(), QSize(100, 100));
}

class MacSymbolImagesSystem {
public:
    const SymbolImages &images() { return images_; }

private:
    MacSymbolImages images_;
};

class BundleIconsSystem {
public:
    const ApplicationIcons &icons() { return icons_; }
    static QUrl application() { return finder; }
    /// Has no icon of its own, and thus that of all such.
    QUrl otherApplication() { return bundle_.url(); }
    static QUrl gone() { return QUrl::fromLocalFile(u"/no/such.app"_s); }

private:
    test::StandInBundle bundle_{u"com.slimjet.browser"_s};
    BundleIcons icons_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, SymbolImagesContract, MacSymbolImagesSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, ApplicationIconsContract, BundleIconsSystem);

} // namespace test
} // namespace vantrel
