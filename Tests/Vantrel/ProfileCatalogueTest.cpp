#include "Vantrel/ProfileCatalogue.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Chrome, Edge and Firefox are installed; Brave isn't.
ProfileCatalogue catalogue()
{
    return {.browsers = {{test::chrome, u"Google Chrome"_s, {}, BrowserFamily::chromium},
                         {test::edge, u"Edge"_s, {}, BrowserFamily::chromium},
                         {test::firefox, u"Firefox"_s, {}, BrowserFamily::firefox}},
            .profiles = test::profiles(u"c:1=Work c:private b:1=Brave e:private f:/x=Home f:private"_s),
            .hidden = {u"com.google.Chrome/private"_s, u"com.brave.Browser/chromium:1"_s},
            .customNames = {}};
}

TEST(ProfileCatalogue, AProfileIsCalledAsItsBrowserCallsItUntilTheUserNamesIt)
{
    ProfileCatalogue named = catalogue();
    const std::vector<std::pair<qsizetype, QString>> rows{{0, u"Work"_s},  {1, u"Incognito Window"_s},
                                                          {2, u"Brave"_s}, {3, u"InPrivate Window"_s},
                                                          {4, u"Home"_s},  {5, u"Private Window"_s}};
    for (const auto &[index, name] : rows)
        EXPECT_EQ(named.displayName(named.profiles[index]), name);
    for (const auto &[index, name] : rows) {
        const Profile &profile = named.profiles[index];
        named.customNames.insert(profile.id(), QString());
        EXPECT_EQ(named.displayName(profile), name) << "An empty name is none.";
        named.customNames.insert(profile.id(), u"Mine %1"_s);
        EXPECT_EQ(named.displayName(profile), u"Mine %1"_s);
    }
}

TEST(ProfileCatalogue, ATitleBeginsWithTheBrowser)
{
    ProfileCatalogue titled = catalogue();
    titled.customNames.insert(u"org.mozilla.firefox/private"_s, u"Secret"_s);
    const QStringList expected{u"Google Chrome – Work"_s,
                               u"Google Chrome – Incognito Window"_s,
                               u"com.brave.Browser – Brave"_s,
                               u"Edge – InPrivate Window"_s,
                               u"Firefox – Home"_s,
                               u"Firefox – Secret"_s};
    QStringList titles;
    for (const Profile &profile : std::as_const(titled.profiles))
        titles.append(titled.title(profile));
    EXPECT_EQ(titles, expected);
}

TEST(ProfileCatalogue, AProfilesBrowserIsTheInstalledOne)
{
    const ProfileCatalogue searched = catalogue();
    EXPECT_EQ(searched.browser(searched.profiles[0]), &searched.browsers[0]);
    EXPECT_EQ(searched.browser(searched.profiles[2]), nullptr);
    EXPECT_EQ(searched.browser(searched.profiles[4]), &searched.browsers[2]);
}

TEST(ProfileCatalogue, ProfilesAreHiddenByTheirIdentifier)
{
    const ProfileCatalogue hiding = catalogue();
    QList<bool> hidden;
    for (const Profile &profile : hiding.profiles)
        hidden.append(hiding.isHidden(profile));
    EXPECT_EQ(hidden, (QList<bool>{false, true, true, false, false, false}));
}

TEST(ProfileCatalogue, OnlyInstalledBrowsersProfilesCanBeOpenedHiddenOnesToo)
{
    EXPECT_EQ(test::notation(catalogue().openable()), u"c:1=Work c:private e:private f:/x=Home f:private"_s);
    EXPECT_EQ(ProfileCatalogue().openable(), QList<Profile>());
}

} // namespace
} // namespace vantrel
