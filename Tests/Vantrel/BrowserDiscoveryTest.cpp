#include "Vantrel/BrowserDiscovery.h"

#include "Tests/Vantrel/MeetingBrowserData.h"
#include "Tests/Vantrel/PlantedBrowsers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::profiles;

Browser browser(const QString &bundleID, BrowserFamily family)
{
    return {bundleID, u"Browser"_s, QUrl::fromLocalFile(u"/applications/browser"_s), family};
}

const Browser chrome = browser(test::chrome, BrowserFamily::chromium);
const Browser brave = browser(test::brave, BrowserFamily::chromium);
const Browser firefox = browser(test::firefox, BrowserFamily::firefox);
const Browser safari = browser(test::safari, BrowserFamily::safari);

class BrowserDiscovery : public testing::Test {
protected:
    [[nodiscard]] ProfileReader::Result discover(const QString &bundleID) const
    {
        return discoverBrowser(reader_, planted_.data, bundleID);
    }

    test::PlantedBrowsers planted_;
    ProfileReader reader_;
};

TEST_F(BrowserDiscovery, ABrowserWithoutFoldersHasNoProfiles)
{
    EXPECT_EQ(discover(test::chrome), ProfileReader::Result());
    planted_.data.setFolder(test::chrome, planted_.folder.path(u"missing"_s));
    EXPECT_EQ(discover(test::chrome), ProfileReader::Result());
}

TEST_F(BrowserDiscovery, TheProfilesOfSeveralFoldersComeInTheFoldersOrderOnceEach)
{
    const QString shared = planted_.folder.makeFolder(u"shared"_s);
    planted_.folder.write(u"first/profiles.ini"_s, test::profilesIni({{u"a"_s, u"A"_s}, {shared, u"Shared"_s}}));
    planted_.folder.write(u"second/profiles.ini"_s, test::profilesIni({{shared, u"Again"_s}, {u"b"_s, u"B"_s}}));
    planted_.data.setFolders(test::firefox, {{.path = planted_.folder.path(u"first"_s)},
                                             {.path = planted_.folder.path(u"missing"_s)},
                                             {.path = planted_.folder.path(u"second"_s)}});
    const QList<DiscoveredProfile> expected{{u"A"_s, planted_.folder.path(u"first/a"_s)},
                                            {u"Shared"_s, shared},
                                            {u"B"_s, planted_.folder.path(u"second/b"_s)}};
    EXPECT_EQ(discover(test::firefox), expected);
}

TEST_F(BrowserDiscovery, TheFirstFolderThatCannotBeReadEndsIt)
{
    planted_.folder.write(u"good/profiles.ini"_s, test::profilesIni({{u"a"_s, u"A"_s}}));
    const QString bad = planted_.folder.write(u"bad"_s);
    const QString worse = planted_.folder.write(u"worse"_s);
    planted_.data.setFolders(test::firefox,
                             {{.path = planted_.folder.path(u"good"_s)}, {.path = bad}, {.path = worse}});
    const auto found = discover(test::firefox);
    ASSERT_FALSE(found.has_value());
    EXPECT_EQ(found.error(), ProfileDiscoveryError::readFailed(bad, u"Not a directory"_s));
}

TEST_F(BrowserDiscovery, AFolderThatIsItselfTheProfileIsRead)
{
    const QString opera = u"com.operasoftware.Opera"_s;
    planted_.folder.write(u"opera/Preferences"_s, R"({"profile": {"name": "Old"}})");
    planted_.folder.makeFolder(u"opera/Profile 1"_s);
    const QString path = planted_.folder.path(u"opera"_s);
    planted_.data.setFolders(opera, {{.path = path, .layout = BrowserDataFolder::Layout::singleProfile}});
    EXPECT_EQ(discover(opera), (QList<DiscoveredProfile>{{u"Old"_s, u"."_s}}));
    planted_.data.setFolders(opera, {{.path = path, .layout = BrowserDataFolder::Layout::manyProfiles}});
    EXPECT_EQ(discover(opera), (QList<DiscoveredProfile>{{u"Profile 1"_s, u"Profile 1"_s}}));
}

TEST_F(BrowserDiscovery, TheReadersPicturesAreUsedInBothLayouts)
{
    reader_.readPicture = [](const QString &) { return std::optional<QByteArray>("picture"); };
    planted_.folder.write(u"data/Preferences"_s, "{}");
    planted_.folder.write(u"data/Google Profile Picture.png"_s);
    planted_.folder.write(u"data/Default/Google Profile Picture.png"_s);
    for (const auto layout : {BrowserDataFolder::Layout::singleProfile, BrowserDataFolder::Layout::manyProfiles}) {
        planted_.data.setFolders(test::chrome, {{.path = planted_.folder.path(u"data"_s), .layout = layout}});
        const auto found = discover(test::chrome);
        ASSERT_TRUE(found.has_value());
        ASSERT_EQ(found->size(), 1);
        EXPECT_EQ(found->first().avatarPNG, "picture");
    }
}

TEST_F(BrowserDiscovery, EveryBrowserButSafariHasAResult)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"Work"_s}});
    planted_.plantUnreadable(test::brave, u"Brave"_s);
    const DiscoveryResults results = discoverBrowsers(reader_, planted_.data, {safari, chrome, brave, firefox});
    EXPECT_EQ(results.size(), 3);
    EXPECT_EQ(results.value(test::chrome), (QList<DiscoveredProfile>{{u"Work"_s, u"Default"_s}}));
    EXPECT_FALSE(results.value(test::brave).has_value());
    ASSERT_TRUE(results.contains(test::firefox));
    EXPECT_EQ(results.value(test::firefox), ProfileReader::Result());
    EXPECT_TRUE(discoverBrowsers(reader_, planted_.data, {}).isEmpty());
}

TEST_F(BrowserDiscovery, BrowsersAreReadSideBySide)
{
    const test::MeetingBrowserData data(2);
    EXPECT_EQ(discoverBrowsers(reader_, data, {chrome, firefox}).size(), 2);
    EXPECT_TRUE(data.haveMet()) << "One browser waited for another to be read.";
}

/// The list after a run, in the notation of samples.
QString merged(const DiscoveryResults &results, const QList<Browser> &browsers, const QString &saved)
{
    return test::notation(withResults(results, browsers, profiles(saved)));
}

const ProfileReader::Result failure = std::unexpected(ProfileDiscoveryError::accessDenied(u"/data"_s));

TEST(DiscoveryResults, WhatWasFoundIsFollowedByThePrivateWindow)
{
    const DiscoveryResults results{
        {test::chrome, QList<DiscoveredProfile>{{u"Default"_s, u"Default"_s}, {u"Work"_s, u"1"_s}}},
        {test::firefox, QList<DiscoveredProfile>{{u"Home"_s, u"/path"_s}}},
    };
    EXPECT_EQ(merged(results, {chrome, firefox}, {}), u"c:Default c:1=Work c:private f:/path=Home f:private"_s);
    EXPECT_EQ(merged(results, {firefox, chrome}, {}), u"f:/path=Home f:private c:Default c:1=Work c:private"_s);
    EXPECT_EQ(merged(results, {}, {}), QString());
}

TEST(DiscoveryResults, APictureIsPassedOn)
{
    const DiscoveryResults results{{test::chrome, QList<DiscoveredProfile>{{u"1"_s, u"1"_s, "picture"}}}};
    const QList<Profile> list = withResults(results, {chrome}, profiles(u"c:1"_s));
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list.first().avatarPNG, "picture");
}

TEST(DiscoveryResults, TheUsersOrderStaysAndWhatIsGoneGoes)
{
    const DiscoveryResults results{
        {test::chrome, QList<DiscoveredProfile>{{u"1"_s, u"1"_s}, {u"New"_s, u"2"_s}, {u"Renamed"_s, u"3"_s}}}};
    EXPECT_EQ(merged(results, {chrome}, u"f:x c:3 c:gone c:private c:1"_s), u"f:x c:3=Renamed c:2=New c:private c:1"_s);
}

TEST(DiscoveryResults, AFailedBrowserKeepsItsProfiles)
{
    EXPECT_EQ(merged({{test::chrome, failure}}, {chrome}, u"c:2 c:private c:1"_s), u"c:2 c:private c:1"_s);
    EXPECT_EQ(merged({{test::chrome, failure}}, {chrome}, u"c:1"_s), u"c:1 c:private"_s);
    EXPECT_EQ(merged({{test::chrome, failure}}, {chrome}, {}), u"c:private"_s);
}

TEST(DiscoveryResults, ABrowserWithoutAResultKeepsItsProfiles)
{
    EXPECT_EQ(merged({}, {safari, chrome}, u"c:1 s:Home"_s), u"c:1 c:private s:Home s:private"_s);
}

TEST(DiscoveryResults, ABrowserThatHasNoMoreProfilesKeepsItsPrivateWindow)
{
    EXPECT_EQ(merged({{test::chrome, QList<DiscoveredProfile>()}}, {chrome}, u"c:1 c:private c:2"_s), u"c:private"_s);
}

TEST(DiscoveryResults, TheProfilesOfBrowsersThatAreNotInstalledStay)
{
    EXPECT_EQ(merged({{test::chrome, QList<DiscoveredProfile>()}}, {chrome}, u"b:1 b:private c:1"_s),
              u"b:1 b:private c:private"_s);
}

TEST(DiscoveryResults, OneBrowsersFailureLeavesTheOthersAlone)
{
    const DiscoveryResults results{{test::chrome, failure},
                                   {test::brave, QList<DiscoveredProfile>{{u"new"_s, u"new"_s}}}};
    EXPECT_EQ(merged(results, {brave, chrome}, u"c:1 b:old"_s), u"c:1 c:private b:new b:private"_s);
}

} // namespace
} // namespace vantrel
