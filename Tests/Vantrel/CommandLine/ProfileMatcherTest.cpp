#include "Vantrel/CommandLine/ProfileMatcher.h"

#include "Tests/VantrelKit/Samples.h"
#include "VantrelKit/KnownBrowsers.h"
#include "VantrelKit/LaunchLink.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString privateInChrome = u"com.google.Chrome/private"_s;

/// Chrome and Firefox are installed; Brave isn't.
ProfileCatalogue catalogue()
{
    return {.browsers = {{test::chrome, u"Google Chrome"_s, {}, BrowserFamily::chromium},
                         {test::firefox, u"Firefox"_s, {}, BrowserFamily::firefox}},
            .profiles = test::profiles(u"c:Default=Work c:1=Home c:private b:1=Brave f:/p=Work f:private"_s),
            .hidden = {privateInChrome},
            .customNames = {{u"com.google.Chrome/chromium:1"_s, u"Müller & Co"_s}}};
}

/// The id of what a text names, or what is said about it.
QString matched(const QString &text, const ProfileCatalogue &catalogue = ::vantrel::catalogue())
{
    const auto profile = matchProfile(text, catalogue);
    return profile ? profile->id() : profile.error().message;
}

TEST(ProfileMatcher, AProfileIsNamedByItsIdTitleOrOnlyName)
{
    const std::vector<std::pair<QString, QString>> rows{
        {u"com.google.Chrome/chromium:Default"_s, u"com.google.Chrome/chromium:Default"_s},
        {u"org.mozilla.firefox/firefox:/p"_s, u"org.mozilla.firefox/firefox:/p"_s},
        {privateInChrome, privateInChrome},
        {u"Google Chrome – Work"_s, u"com.google.Chrome/chromium:Default"_s},
        {u"Firefox – Work"_s, u"org.mozilla.firefox/firefox:/p"_s},
        {u"Google Chrome – Incognito Window"_s, privateInChrome},
        {u"Google Chrome – Müller & Co"_s, u"com.google.Chrome/chromium:1"_s},
        {u"Müller & Co"_s, u"com.google.Chrome/chromium:1"_s},
        {u"Incognito Window"_s, privateInChrome},
        {u"Private Window"_s, u"org.mozilla.firefox/private"_s},
    };
    for (const auto &[text, id] : rows)
        EXPECT_EQ(matched(text), id) << text.toStdString();
}

TEST(ProfileMatcher, ANameThatTwoHaveIsAnsweredWithBoth)
{
    EXPECT_EQ(matched(u"Work"_s), u"More than one profile is called “Work”. Name one by its title or its id:\n"
                                  "  Google Chrome – Work  com.google.Chrome/chromium:Default\n"
                                  "  Firefox – Work  org.mozilla.firefox/firefox:/p"_s);
}

TEST(ProfileMatcher, ATitleThatTwoHaveIsAnsweredWithBothAndTheIdStillTellsThemApart)
{
    ProfileCatalogue twins = catalogue();
    twins.customNames.insert(u"com.google.Chrome/chromium:Default"_s, u"Müller & Co"_s);
    EXPECT_EQ(matched(u"Google Chrome – Müller & Co"_s, twins),
              u"More than one profile is called “Google Chrome – Müller & Co”. Name one by its title or its id:\n"
              "  Google Chrome – Müller & Co  com.google.Chrome/chromium:Default\n"
              "  Google Chrome – Müller & Co  com.google.Chrome/chromium:1"_s);
    EXPECT_EQ(matched(u"com.google.Chrome/chromium:1"_s, twins), u"com.google.Chrome/chromium:1"_s);
}

TEST(ProfileMatcher, IdComesBeforeTitleAndTitleBeforeName)
{
    ProfileCatalogue odd = catalogue();
    odd.customNames = {{u"com.google.Chrome/chromium:Default"_s, u"org.mozilla.firefox/firefox:/p"_s},
                       {privateInChrome, u"Firefox – Work"_s}};
    EXPECT_EQ(matched(u"org.mozilla.firefox/firefox:/p"_s, odd), u"org.mozilla.firefox/firefox:/p"_s);
    EXPECT_EQ(matched(u"Firefox – Work"_s, odd), u"org.mozilla.firefox/firefox:/p"_s);
}

TEST(ProfileMatcher, NamesAreComparedExactly)
{
    for (const QString &text : {u"müller & co"_s, u"Müller"_s, u" Müller & Co"_s, u"Google Chrome - Müller & Co"_s,
                                u"com.google.Chrome/chromium:default"_s, u"Home"_s})
        EXPECT_FALSE(matchProfile(text, catalogue()).has_value()) << text.toStdString();
}

TEST(ProfileMatcher, AnUnknownNameIsAnsweredWithThoseThatHaveItInTheirTitle)
{
    EXPECT_EQ(matched(u"fireFOX"_s), u"There is no profile “fireFOX”. These are there:\n"
                                     "  Firefox – Work  org.mozilla.firefox/firefox:/p\n"
                                     "  Firefox – Private Window  org.mozilla.firefox/private"_s);
}

TEST(ProfileMatcher, ANameThatNoTitleHasIsAnsweredWithAll)
{
    const QString all = u"\n  Google Chrome – Work  com.google.Chrome/chromium:Default\n"
                        "  Google Chrome – Müller & Co  com.google.Chrome/chromium:1\n"
                        "  Google Chrome – Incognito Window  com.google.Chrome/private\n"
                        "  Firefox – Work  org.mozilla.firefox/firefox:/p\n"
                        "  Firefox – Private Window  org.mozilla.firefox/private"_s;
    EXPECT_EQ(matched(u"nowhere"_s), u"There is no profile “nowhere”. These are there:"_s + all);
    EXPECT_EQ(matched(QString()), u"There is no profile “”. These are there:"_s + all);
    // Brave isn't installed.
    EXPECT_EQ(matched(u"com.brave.Browser/chromium:1"_s),
              u"There is no profile “com.brave.Browser/chromium:1”. These are there:"_s + all);
}

TEST(ProfileMatcher, WithoutBrowsersThatIsTheAnswer)
{
    ProfileCatalogue empty = catalogue();
    empty.browsers.clear();
    EXPECT_EQ(matched(u"Work"_s, empty), u"There is no profile “Work”: no browser that Vantrel knows is installed."_s);
}

/// Chrome with profiles named 1, 2, ….
ProfileCatalogue catalogueOf(int count)
{
    ProfileCatalogue many;
    many.browsers = {{test::chrome, u"Chrome"_s, {}, BrowserFamily::chromium}};
    for (int number = 1; number <= count; ++number)
        many.profiles += test::profiles(u"c:%1"_s.arg(number));
    return many;
}

TEST(ProfileMatcher, NoMoreThanTwentyCandidatesAreShown)
{
    const QStringList exactly = matched(u"nowhere"_s, catalogueOf(20)).split(u'\n');
    EXPECT_EQ(exactly.size(), 21);
    EXPECT_EQ(exactly.last(), u"  Chrome – 20  com.google.Chrome/chromium:20"_s);
    const QStringList more = matched(u"nowhere"_s, catalogueOf(45)).split(u'\n');
    EXPECT_EQ(more.size(), 22);
    EXPECT_EQ(more.at(20), u"  Chrome – 20  com.google.Chrome/chromium:20"_s);
    EXPECT_EQ(more.last(), u"  … and 25 more: “vantrel list --all” shows them."_s);
}

TEST(ProfileMatcher, LongAndControllingTextIsShownShortAndHarmless)
{
    const QString longest(200, u'x');
    EXPECT_TRUE(matched(longest).startsWith(u"There is no profile “"_s + longest + u"”."_s));
    EXPECT_TRUE(matched(longest + u'y').startsWith(u"There is no profile “"_s + longest + u"…”."_s));
    EXPECT_TRUE(matched(u"a\x1b[31m\nb"_s).startsWith(u"There is no profile “a\\x1b[31m\\nb”."_s));
    ProfileCatalogue odd = catalogueOf(1);
    odd.profiles = {{test::chrome, u"new\nline"_s, ProfileTarget::chromium(u"tab\t"_s)}};
    EXPECT_EQ(matched(u"nowhere"_s, odd), u"There is no profile “nowhere”. These are there:\n"
                                          "  Chrome – new\\nline  com.google.Chrome/chromium:tab\\t"_s);
}

TEST(ProfileMatcher, APercentSignInANameIsNoPlaceholder)
{
    ProfileCatalogue odd = catalogueOf(1);
    odd.customNames = {{u"com.google.Chrome/chromium:1"_s, u"%1 %2 %L1"_s}};
    EXPECT_EQ(matched(u"%2"_s, odd), u"There is no profile “%2”. These are there:\n"
                                     "  Chrome – %1 %2 %L1  com.google.Chrome/chromium:1"_s);
    EXPECT_EQ(matched(u"%1 %2 %L1"_s, odd), u"com.google.Chrome/chromium:1"_s);
}

TEST(ProfileMatcher, ALinkNamesTheProfileThatItWasMadeFor)
{
    const ProfileCatalogue known = catalogue();
    for (const Profile &profile : known.profiles)
        EXPECT_EQ(matched(LaunchLink::forProfile(profile).text()), profile.id());
    EXPECT_EQ(matched(u"VANTREL://?browserBundleIdentifier=com.google.Chrome&profileName=Home"_s),
              u"com.google.Chrome/chromium:1"_s);
    EXPECT_EQ(matched(u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=M%C3%BCller%20%26%20Co"_s),
              u"com.google.Chrome/chromium:1"_s)
        << "By the name that the user gave.";
}

TEST(ProfileMatcher, ALinkToAnUnknownProfileSaysSo)
{
    const QString end = u"”. Check that it still exists in the browser, then make its launcher app again."_s;
    EXPECT_EQ(matched(u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Gone"_s),
              u"Vantrel doesn't know the profile “Gone"_s + end);
    EXPECT_EQ(matched(u"vantrel://?browserBundleIdentifier=org.example&profileName=a%0Ab"_s),
              u"Vantrel doesn't know the profile “a\\nb"_s + end);
}

TEST(ProfileMatcher, ALinkThatIsNoneIsShownAsItIs)
{
    for (const QString &text :
         {u"vantrel:"_s, u"vantrel://"_s, u"vantrel://?"_s, u"vantrel:open"_s,
          u"vantrel://?browserBundleIdentifier=com.google.Chrome"_s, u"Vantrel://?profileName=Work"_s})
        EXPECT_EQ(matched(text), u"Not a profile link: "_s + text);
    EXPECT_EQ(matched(u"vantrel:\n"_s), u"Not a profile link: vantrel:\\n"_s);
}

TEST(ProfileMatcher, OnlyTheSchemeMakesALink)
{
    for (const QString &text : {u"vantrel:"_s, u"VANTREL://x"_s, u"vantrel://?a=b"_s})
        EXPECT_TRUE(isProfileLink(text)) << text.toStdString();
    for (const QString &text : {QString(), u"vantrel"_s, u" vantrel:"_s, u"vantrels:"_s, u"https://vantrel:1/"_s})
        EXPECT_FALSE(isProfileLink(text)) << text.toStdString();
}

TEST(ProfileMatcher, OnlyTheBrowserOfAnIdOrALinkIsSearched)
{
    const QString linkStart = u"vantrel://?browserBundleIdentifier="_s;
    const std::vector<std::pair<QString, QStringList>> rows{
        {u"com.google.Chrome/chromium:Default"_s, {test::chrome}},
        {u"com.google.Chrome/"_s, {test::chrome}},
        {u"org.mozilla.firefox/firefox:/a/b/c"_s, {test::firefox}},
        {linkStart + u"com.google.Chrome&profileName=Work"_s, {test::chrome}},
        {linkStart + u"com.google.Chrome&profile=com.google.Chrome/private"_s, {test::chrome}},
        {linkStart + u"com.google.Chrome&profile=org.mozilla.firefox/firefox:/p"_s, {test::chrome, test::firefox}},
        {linkStart + u"org.example&profile=org.mozilla.firefox/private"_s, {test::firefox}},
        {linkStart + u"org.example&profileName=Work"_s, {}},
        {u"vantrel://"_s, {}},
        {u"Work"_s, KnownBrowsers::all()},
        {u"Google Chrome – Work"_s, KnownBrowsers::all()},
        {u"com.google.chrome/chromium:Default"_s, KnownBrowsers::all()},
        {u"a/com.google.Chrome"_s, KnownBrowsers::all()},
        {QString(), KnownBrowsers::all()},
    };
    for (const auto &[text, bundleIDs] : rows)
        EXPECT_EQ(browsersToSearch(text), bundleIDs) << text.toStdString();
}

} // namespace
} // namespace vantrel
