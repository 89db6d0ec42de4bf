#include "Vantrel/BrowserSurvey.h"

#include "Tests/Vantrel/MeetingBrowserData.h"
#include "Tests/Vantrel/PlantedBrowsers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class BrowserSurveyTest : public testing::Test {
protected:
    [[nodiscard]] BrowserSurvey survey(const QStringList &bundleIDs = KnownBrowsers::all()) const
    {
        return BrowserSurvey::make(planted_.workspace, planted_.data, ProfileReader(), bundleIDs);
    }

    static QStringList bundleIDs(const QList<Browser> &browsers)
    {
        QStringList result;
        for (const Browser &browser : browsers)
            result.append(browser.bundleID);
        return result;
    }

    test::PlantedBrowsers planted_;
};

TEST_F(BrowserSurveyTest, EveryInstalledBrowserHasItsResult)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"Work"_s}});
    planted_.plantFirefox(test::firefox, u"Firefox"_s, {{u"/p"_s, u"Fox"_s}});
    const QString path = planted_.plantUnreadable(test::brave, u"Brave"_s);
    const BrowserSurvey found = survey();
    EXPECT_EQ(bundleIDs(found.browsers), (QStringList{test::brave, test::chrome, test::firefox}));
    EXPECT_EQ(found.results.size(), 3);
    EXPECT_EQ(found.results.value(test::chrome), (QList<DiscoveredProfile>{{u"Work"_s, u"Default"_s}}));
    EXPECT_EQ(found.results.value(test::firefox), (QList<DiscoveredProfile>{{u"Fox"_s, u"/p"_s}}));
    ASSERT_FALSE(found.results.value(test::brave).has_value());
    EXPECT_EQ(found.results.value(test::brave).error().path, path);
}

TEST_F(BrowserSurveyTest, BrowsersAreToldAsTheyWereFound)
{
    const QUrl url = planted_.workspace.install(test::zen, u"Zen 2"_s);
    EXPECT_EQ(survey().browsers, (QList<Browser>{{test::zen, u"Zen 2"_s, url, BrowserFamily::firefox}}));
}

TEST_F(BrowserSurveyTest, SafariComesFirstAndHasNoResult)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {});
    planted_.workspace.install(test::safari, u"Safari"_s);
    planted_.data.setFolder(test::safari, planted_.folder.path());
    const BrowserSurvey found = survey();
    EXPECT_EQ(bundleIDs(found.browsers), (QStringList{test::safari, test::chrome}));
    EXPECT_EQ(found.results.keys(), QStringList(test::chrome));
}

TEST_F(BrowserSurveyTest, OnlyKnownInstalledBrowsersAmongThoseAskedForCount)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {});
    planted_.plantChromium(test::brave, u"Brave"_s, {});
    planted_.workspace.install(test::unknownBrowser, u"Unknown"_s);
    EXPECT_EQ(bundleIDs(survey({test::unknownBrowser, test::zen, test::brave}).browsers), QStringList(test::brave));
    EXPECT_EQ(survey({test::unknownBrowser, test::zen, test::brave}).results.size(), 1);
    EXPECT_TRUE(survey({}).browsers.isEmpty());
    EXPECT_TRUE(survey({}).results.isEmpty());
}

TEST_F(BrowserSurveyTest, BrowsersComeByNameAndEqualNamesInTheOrderAskedFor)
{
    planted_.workspace.install(test::chrome, u"Browser 10"_s);
    planted_.workspace.install(test::brave, u"browser 9"_s);
    planted_.workspace.install(test::edge, u"Browser 9"_s);
    EXPECT_EQ(bundleIDs(survey({test::chrome, test::edge, test::brave}).browsers),
              (QStringList{test::edge, test::brave, test::chrome}));
    EXPECT_EQ(bundleIDs(survey({test::chrome, test::brave, test::edge}).browsers),
              (QStringList{test::brave, test::edge, test::chrome}));
}

TEST_F(BrowserSurveyTest, BrowsersAreReadSideBySide)
{
    planted_.workspace.install(test::chrome, u"Chrome"_s);
    planted_.workspace.install(test::firefox, u"Firefox"_s);
    const test::MeetingBrowserData data(2);
    const auto found = BrowserSurvey::make(planted_.workspace, data, ProfileReader(), KnownBrowsers::all());
    EXPECT_EQ(found.results.size(), 2);
    EXPECT_TRUE(data.haveMet()) << "One browser waited for another to be read.";
}

} // namespace
} // namespace vantrel
