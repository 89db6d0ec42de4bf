#include "VantrelKit/Profile.h"

#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TranslatedProgram.h"
#include "VantrelKit/KnownBrowsers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

Profile made(const QString &browserBundleID, const QString &name, const ProfileTarget &target)
{
    return {browserBundleID, name, target};
}

Profile work()
{
    return {test::chrome, u"Work"_s, ProfileTarget::chromium(u"Profile 3"_s), QByteArray("picture")};
}

QList<Browser> installed()
{
    return {{test::firefox, u"Firefox"_s, QUrl(u"file:///firefox"_s), BrowserFamily::firefox},
            {test::chrome, u"Google Chrome"_s, QUrl(u"file:///chrome"_s), BrowserFamily::chromium},
            {test::chrome, u"Second Chrome"_s, QUrl(u"file:///chrome2"_s), BrowserFamily::chromium}};
}

TEST(Profile, TheIdIsTheBrowserASlashAndTheTargetsKey)
{
    EXPECT_EQ(made(test::chrome, u"Person 1"_s, ProfileTarget::chromium(u"Default"_s)).id(),
              u"com.google.Chrome/chromium:Default"_s);
    EXPECT_EQ(made(test::safari, {}, ProfileTarget::safariPrivate()).id(), u"com.apple.Safari/private"_s);
    EXPECT_EQ(made(test::firefox, u"x"_s, ProfileTarget::firefox(u"/home/a/b.c"_s)).id(),
              u"org.mozilla.firefox/firefox:/home/a/b.c"_s);
    EXPECT_EQ(made(test::safari, u"Work"_s, ProfileTarget::safariProfile(u"Work"_s, 2)).id(),
              u"com.apple.Safari/safari:Work"_s);
}

TEST(Profile, TheBrowserKeepsIdsFromColliding)
{
    const ProfileTarget target = ProfileTarget::chromium(u"Profile 3"_s);
    EXPECT_EQ(made(test::chrome, u"Work"_s, target).id(), u"com.google.Chrome/chromium:Profile 3"_s);
    EXPECT_EQ(made(test::brave, u"Work"_s, target).id(), u"com.brave.Browser/chromium:Profile 3"_s);
}

TEST(Profile, TheIdStaysWhenNamePictureOrMenuPositionChange)
{
    Profile changed = work();
    changed.name = u"Home"_s;
    changed.avatarPNG = std::nullopt;
    EXPECT_EQ(changed.id(), work().id());
    EXPECT_EQ(made(test::safari, u"Work"_s, ProfileTarget::safariProfile(u"Work"_s, 1)).id(),
              made(test::safari, u"Work"_s, ProfileTarget::safariProfile(u"Work"_s, 7)).id());
}

TEST(Profile, ThePrivateWindowHasNoNameAndNoPictureAndItsFamilysTarget)
{
    for (const QString &identifier : KnownBrowsers::all()) {
        const Profile profile = Profile::privateWindow(identifier);
        const Profile expected{identifier, {}, ProfileTarget::privateWindow(*KnownBrowsers::family(identifier))};
        EXPECT_EQ(profile, expected);
        EXPECT_EQ(profile.id(), identifier + u"/private"_s);
    }
    EXPECT_EQ(Profile::privateWindow(test::safari).target, ProfileTarget::safariPrivate());
    EXPECT_EQ(Profile::privateWindow(test::edge).target, ProfileTarget::chromiumPrivate());
    EXPECT_EQ(Profile::privateWindow(test::zen).target, ProfileTarget::firefoxPrivate());
}

TEST(Profile, AnUnknownBrowsersPrivateWindowIsThatOfChromium)
{
    EXPECT_EQ(Profile::privateWindow(test::unknownBrowser),
              made(test::unknownBrowser, {}, ProfileTarget::chromiumPrivate()));
    EXPECT_EQ(Profile::privateWindow({}), made({}, {}, ProfileTarget::chromiumPrivate()));
}

TEST(Profile, EveryFieldCountsForEqualityAndHash)
{
    QList<Profile> others(6, work());
    others[0].browserBundleID = test::brave;
    others[1].name = u"Home"_s;
    others[2].target = ProfileTarget::chromium(u"Profile 4"_s);
    others[3].avatarPNG = QByteArray("other");
    others[4].avatarPNG = QByteArray("");
    others[5].avatarPNG = std::nullopt;
    EXPECT_EQ(work(), work());
    EXPECT_EQ(qHash(work()), qHash(work()));
    EXPECT_NE(qHash(work(), 1), qHash(work(), 2));
    QSet<size_t> hashes{qHash(work())};
    for (const Profile &other : others) {
        EXPECT_NE(other, work());
        hashes.insert(qHash(other));
    }
    EXPECT_EQ(hashes.size(), others.size() + 1);
}

TEST(Profile, TheTitleIsTheBrowserAnEnDashAndTheDisplayName)
{
    EXPECT_EQ(displayTitle(work(), installed(), u"Work"_s), u"Google Chrome \u2013 Work"_s);
    EXPECT_EQ(displayTitle(work(), installed(), u"My own name"_s), u"Google Chrome \u2013 My own name"_s);
    EXPECT_EQ(displayTitle(work(), installed(), {}), u"Google Chrome \u2013 "_s);
}

TEST(Profile, TheTitleOfAnUninstalledBrowserBeginsWithItsIdentifier)
{
    EXPECT_EQ(displayTitle(work(), {}, u"Work"_s), u"com.google.Chrome \u2013 Work"_s);
    EXPECT_EQ(displayTitle(work(), installed().first(1), u"Work"_s), u"com.google.Chrome \u2013 Work"_s);
}

TEST(Profile, TheTitleTakesAnyNamesAsTheyAre)
{
    for (const QString &text : test::oddTexts()) {
        const QList<Browser> browsers{{test::chrome, text, {}, BrowserFamily::chromium}};
        EXPECT_EQ(displayTitle(work(), browsers, text), QString(text + u" \u2013 "_s + text));
    }
    const QList<Browser> placeholder{{test::chrome, u"%2"_s, {}, BrowserFamily::chromium}};
    EXPECT_EQ(displayTitle(work(), placeholder, u"%1"_s), u"%2 \u2013 %1"_s);
}

TEST(Profile, ATranslationMayTurnTheTitleAround)
{
    const test::TranslatedProgram program(
        [](const QString &text) { return text == u"%1 \u2013 %2"_s ? u"%2 (%1)"_s : u"not the text to translate"_s; });
    EXPECT_EQ(displayTitle(work(), installed(), u"Work"_s), u"Work (Google Chrome)"_s);
}

} // namespace
} // namespace vantrel
