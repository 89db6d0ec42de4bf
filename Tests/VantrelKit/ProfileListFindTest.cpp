#include "Tests/VantrelKit/Samples.h"
#include "VantrelKit/ProfileList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Names = QHash<QString, QString>;

using test::profiles;

LaunchLink link(const QString &browser, const QString &name, const std::optional<QString> &id = std::nullopt)
{
    return {browser, name, id, {}};
}

Profile safariNamed(const QString &name)
{
    return {test::safari, name, ProfileTarget::safariProfile(name, -1)};
}

Profile madeUp(const QString &browser, const QString &name, const ProfileTarget &target)
{
    return {browser, name, target};
}

/// Each browser has real profiles and a private window; Chrome and Brave have a folder and a name in common.
QList<Profile> list()
{
    return profiles(u"c:Default=Home c:1=Work c:2=Work c:private b:1=Work b:private f:/p=default f:private s:Play"_s);
}

const QString customID = u"com.google.Chrome/chromium:2"_s;

TEST(ProfileListFind, AnIdBeatsEveryName)
{
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Work"_s, u"com.google.Chrome/chromium:2"_s), list(), {}),
              list()[2]);
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Private"_s, u"com.google.Chrome/chromium:Default"_s), list(), {}),
              list()[0]);
    EXPECT_EQ(ProfileList::find(link(test::chrome, {}, u"com.google.Chrome/private"_s), list(), {}), list()[3]);
}

TEST(ProfileListFind, AnIdIsFoundInWhicheverBrowserHasIt)
{
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Work"_s, u"com.brave.Browser/chromium:1"_s), list(), {}),
              list()[4]);
}

TEST(ProfileListFind, OfProfilesWithOneIdTheFirstWins)
{
    const QList<Profile> twice = profiles(u"c:1=A c:1=B"_s);
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"B"_s, u"com.google.Chrome/chromium:1"_s), twice, {}), twice[0]);
}

TEST(ProfileListFind, IdsAreComparedExactly)
{
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Home"_s, u"com.google.Chrome/Chromium:1"_s), list(), {}),
              list()[0]);
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Home"_s, u"com.google.Chrome/chromium:1 "_s), list(), {}),
              list()[0]);
}

TEST(ProfileListFind, WithoutAMatchingIdTheNameDecides)
{
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Home"_s, u"com.google.Chrome/chromium:9"_s), list(), {}),
              list()[0]);
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Home"_s), list(), {}), list()[0]);
}

TEST(ProfileListFind, OfProfilesWithOneNameTheFirstOfTheBrowserWins)
{
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Work"_s), list(), {}), list()[1]);
    EXPECT_EQ(ProfileList::find(link(test::brave, u"Work"_s), list(), {}), list()[4]);
}

TEST(ProfileListFind, NamesAreComparedExactly)
{
    for (const QString &name : {u"work"_s, u"Work "_s, u" Work"_s, u"Wor"_s})
        EXPECT_EQ(ProfileList::find(link(test::chrome, name), list(), {}), std::nullopt);
}

TEST(ProfileListFind, AnyNameIsFound)
{
    for (const QString &text : test::oddTexts() + test::loneSurrogates()) {
        const QList<Profile> odd{madeUp(test::chrome, text, ProfileTarget::chromium(u"1"_s))};
        EXPECT_EQ(ProfileList::find(link(test::chrome, text), odd, {}), odd[0]);
    }
}

TEST(ProfileListFind, TheBrowsersOwnNameBeatsTheUsers)
{
    const Names names{{customID, u"Home"_s}};
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Home"_s), list(), names), list()[0]);
}

TEST(ProfileListFind, TheUsersNameIsFoundInTheSameBrowserOnly)
{
    const Names names{{customID, u"Mine"_s}};
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Mine"_s), list(), names), list()[2]);
    EXPECT_EQ(ProfileList::find(link(test::brave, u"Mine"_s), list(), names), std::nullopt);
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"mine"_s), list(), names), std::nullopt);
}

TEST(ProfileListFind, OfUsersNamesTheFirstInTheListWins)
{
    const Names names{{list()[2].id(), u"Mine"_s}, {list()[1].id(), u"Mine"_s}, {list()[0].id(), u"Other"_s}};
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Mine"_s), list(), names), list()[1]);
}

TEST(ProfileListFind, TheUsersNameOfAPrivateWindowCounts)
{
    const Names names{{u"com.google.Chrome/private"_s, u"Secret"_s}};
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Secret"_s), list(), names), list()[3]);
}

TEST(ProfileListFind, TheUsersNameOfAProfileThatIsNotListedCountsNothing)
{
    const Names names{{u"com.google.Chrome/chromium:9"_s, u"Gone"_s}};
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Gone"_s), list(), names), std::nullopt);
}

TEST(ProfileListFind, TheOwnNameOfAPrivateWindowCountsNothing)
{
    const QList<Profile> named{madeUp(test::chrome, u"Odd"_s, ProfileTarget::chromiumPrivate())};
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Odd"_s), named, {}), std::nullopt);
    // A profile without a name is not the private window, though both names are empty.
    EXPECT_EQ(ProfileList::find(link(test::chrome, {}, u"x"_s), profiles(u"c:private c:1="_s), {}),
              profiles(u"c:1="_s)[0]);
}

TEST(ProfileListFind, TheNamePrivateGivesThePrivateWindow)
{
    for (const QString &browser : {test::chrome, test::edge, test::firefox, test::safari, test::unknownBrowser}) {
        EXPECT_EQ(ProfileList::find(link(browser, u"Private"_s), {}, {}), Profile::privateWindow(browser));
        EXPECT_EQ(ProfileList::find(link(browser, u"Private"_s), list(), {}), Profile::privateWindow(browser));
    }
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"private"_s), {}, {}), std::nullopt);
}

TEST(ProfileListFind, AProfileThatIsNamedPrivateBeatsThePrivateWindow)
{
    const QList<Profile> named = profiles(u"c:private c:1=Private"_s);
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Private"_s), named, {}), named[1]);
    const QList<Profile> custom = profiles(u"c:private c:1=Work"_s);
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Private"_s), custom, {{custom[1].id(), u"Private"_s}}), custom[1]);
}

TEST(ProfileListFind, AnIdThatEndsInPrivateGivesThePrivateWindow)
{
    EXPECT_EQ(ProfileList::find(link(test::chrome, {}, u"com.google.Chrome/private"_s), {}, {}),
              Profile::privateWindow(test::chrome));
    EXPECT_EQ(ProfileList::find(link(test::zen, u"x"_s, u"anything/private"_s), {}, {}),
              Profile::privateWindow(test::zen));
    EXPECT_EQ(ProfileList::find(link(test::chrome, {}, u"com.google.Chrome:private"_s), {}, {}), std::nullopt);
    EXPECT_EQ(ProfileList::find(link(test::chrome, {}, u"com.google.Chrome/private/"_s), {}, {}), std::nullopt);
}

TEST(ProfileListFind, AnIdThatIsNotListedGivesAProfileOfItsOwn)
{
    const auto find = [](const QString &browser, const QString &key) {
        return ProfileList::find(link(browser, u"Name"_s, browser + u'/' + key), list(), {});
    };
    EXPECT_EQ(find(test::chrome, u"chromium:Profile 9"_s),
              madeUp(test::chrome, u"Name"_s, ProfileTarget::chromium(u"Profile 9"_s)));
    EXPECT_EQ(find(test::zen, u"firefox:/a/b:c"_s), madeUp(test::zen, u"Name"_s, ProfileTarget::firefox(u"/a/b:c"_s)));
    EXPECT_EQ(find(test::safari, u"safari:Club"_s),
              madeUp(test::safari, u"Name"_s, ProfileTarget::safariProfile(u"Club"_s, -1)));
    EXPECT_EQ(find(test::chrome, u"firefox:x"_s), madeUp(test::chrome, u"Name"_s, ProfileTarget::chromium(u"x"_s)));
}

TEST(ProfileListFind, AMadeUpProfileMayBeWithoutAName)
{
    EXPECT_EQ(ProfileList::find(link(test::chrome, {}, u"com.google.Chrome/chromium:Profile 9"_s), {}, {}),
              madeUp(test::chrome, {}, ProfileTarget::chromium(u"Profile 9"_s)));
}

TEST(ProfileListFind, AnIdOfAnotherOrAnUnknownBrowserMakesNothingUp)
{
    for (const QString &id : {u"com.brave.Browser/chromium:9"_s, u"com.google.Chrome.beta/chromium:9"_s,
                              u"com.google.Chromechromium:9"_s, u"chromium:9"_s, u"com.google.chrome/chromium:9"_s,
                              u"com.google.Chrome/chromium"_s, u"com.google.Chrome/"_s, u"com.google.Chrome"_s})
        EXPECT_EQ(ProfileList::find(link(test::chrome, u"Name"_s, id), list(), {}), std::nullopt) << id.toStdString();
    EXPECT_EQ(ProfileList::find(link(test::unknownBrowser, u"Name"_s, test::unknownBrowser + u"/chromium:9"_s), {}, {}),
              std::nullopt);
}

TEST(ProfileListFind, AnIdCanNotLeadOutOfTheDataFolder)
{
    for (const QString &folder : {u".."_s, u"."_s, u"../../etc"_s, u"/etc"_s, u"a/b"_s})
        EXPECT_EQ(ProfileList::find(link(test::chrome, u"x"_s, u"com.google.Chrome/chromium:"_s + folder), {}, {}),
                  std::nullopt);
}

TEST(ProfileListFind, ASafariProfileThatIsNotListedIsLookedForByItsName)
{
    EXPECT_EQ(ProfileList::find(link(test::safari, u"Club"_s), list(), {}), safariNamed(u"Club"_s));
    EXPECT_EQ(ProfileList::find(link(test::safari, u"Club"_s, u"no id of Safari"_s), {}, {}), safariNamed(u"Club"_s));
    EXPECT_EQ(ProfileList::find(link(test::safari, u"Club"_s, u"com.apple.Safari/no colon"_s), {}, {}),
              safariNamed(u"Club"_s));
    EXPECT_EQ(ProfileList::find(link(u"com.apple.SafariTechnologyPreview"_s, u"Club"_s), {}, {})->browserBundleID,
              u"com.apple.SafariTechnologyPreview"_s);
}

TEST(ProfileListFind, AnIdBeatsTheNameForASafariProfileThatIsNotListed)
{
    EXPECT_EQ(ProfileList::find(link(test::safari, u"Club"_s, u"com.apple.Safari/safari:Team"_s), {}, {}),
              madeUp(test::safari, u"Club"_s, ProfileTarget::safariProfile(u"Team"_s, -1)));
}

TEST(ProfileListFind, ThereIsNoProfileWhereNothingIsKnown)
{
    EXPECT_EQ(ProfileList::find(link(test::safari, {}, u"x"_s), {}, {}), std::nullopt);
    EXPECT_EQ(ProfileList::find(link(test::chrome, u"Club"_s), {}, {}), std::nullopt);
    EXPECT_EQ(ProfileList::find(link(test::firefox, u"Club"_s), list(), {}), std::nullopt);
    EXPECT_EQ(ProfileList::find(link(test::unknownBrowser, u"Work"_s), list(), {}), std::nullopt);
    EXPECT_EQ(ProfileList::find(link({}, {}), {}, {}), std::nullopt);
}

} // namespace
} // namespace vantrel
