#include "VantrelKit/BrowserFamily.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(BrowserFamily, TheFamiliesStandInTheirFixedOrder)
{
    EXPECT_EQ(allBrowserFamilies, (std::array{BrowserFamily::safari, BrowserFamily::chromium, BrowserFamily::firefox}));
}

TEST(BrowserFamily, EachHasItsRawValue)
{
    EXPECT_EQ(rawValue(BrowserFamily::safari), u"safari"_s);
    EXPECT_EQ(rawValue(BrowserFamily::chromium), u"chromium"_s);
    EXPECT_EQ(rawValue(BrowserFamily::firefox), u"firefox"_s);
}

TEST(BrowserFamily, ARawValueGivesItsFamilyBack)
{
    for (const BrowserFamily family : allBrowserFamilies)
        EXPECT_EQ(browserFamily(rawValue(family)), family);
}

TEST(BrowserFamily, AnyOtherTextIsNoFamily)
{
    for (const QString &text :
         QStringList{
             {}, u""_s, u"Safari"_s, u"FIREFOX"_s, u"chromium "_s, u" firefox"_s, u"chrome"_s, u"0"_s, u"safari\0"_s} +
             test::oddTexts())
        EXPECT_EQ(browserFamily(text), std::nullopt) << text.toStdString();
}

} // namespace
} // namespace vantrel
