#include "Vantrel/ProfileOpener.h"

#include "Tests/Fakes/FakeAlert.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeWorkspace.h"
#include "Tests/VantrelKit/Samples.h"
#include "Vantrel/InstalledBrowsers.h"
#include "VantrelKit/LaunchLink.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Source = ProfileOpener::Source;

const QString alertTitle = u"The Profile Didn't Open / "_s;

/// Safari as a test sees it: "open NAME INDEX LINK…" and "private LINK…".
class FakeSafari final : public SafariOpening {
public:
    [[nodiscard]] Step openProfile(QString name, qint64 index, Browser browser, QList<QUrl> links) override
    {
        calls_.append(
            u"%1: open %2 %3 %4"_s.arg(browser.bundleID, name).arg(index).arg(QUrl::toStringList(links).join(u' ')));
        co_return result_;
    }

    [[nodiscard]] Step openPrivateWindow(Browser browser, QList<QUrl> links) override
    {
        calls_.append(u"%1: private %2"_s.arg(browser.bundleID, QUrl::toStringList(links).join(u' ')));
        co_return result_;
    }

    void refuse(const QString &message) { result_ = std::unexpected(PlatformError{message}); }
    [[nodiscard]] const QStringList &calls() const { return calls_; }

private:
    QStringList calls_;
    std::expected<void, PlatformError> result_;
};

class ProfileOpenerTest : public testing::Test {
protected:
    ProfileOpenerTest()
    {
        for (const QString &bundleID : {test::chrome, test::edge, test::firefox, test::safari})
            workspace_.install(bundleID, bundleID);
        store_.setBrowsers(installedBrowsers(workspace_, {test::chrome, test::edge, test::firefox, test::safari}));
        store_.apply({{test::chrome, QList<DiscoveredProfile>{{u"Work"_s, u"Profile 1"_s}}}});
        std::ignore = log_.takeLines();
    }

    [[nodiscard]] ProfileOpener opener(SafariOpening *safari = nullptr)
    {
        return {store_, {workspace_, alert_, log_, safari}};
    }

    void open(const QString &notation, const QStringList &links = {}, Source source = Source::menu)
    {
        ProfileOpener opener = this->opener(&safari_);
        opener.open(test::profiles(notation).first(), QUrl::fromStringList(links), source);
    }

    void openLink(const QString &link)
    {
        ProfileOpener opener = this->opener(&safari_);
        opener.openLink(QUrl(link));
    }

    /// The arguments of each start.
    [[nodiscard]] QList<QStringList> starts() const
    {
        QList<QStringList> arguments;
        for (const test::FakeWorkspace::Opening &opening : workspace_.openings())
            arguments.append(opening.arguments);
        return arguments;
    }

    test::FakeWorkspace workspace_;
    test::FakeAlert alert_;
    test::FakeLog log_;
    FakeSafari safari_;
    ProfileStore store_{QString(), log_, ProfileStore::Liveness::detached};
};

TEST_F(ProfileOpenerTest, AProfileWithoutLinksIsOneStart)
{
    open(u"c:Profile_1"_s);
    EXPECT_EQ(starts(), QList<QStringList>{{u"--profile-directory=Profile_1"_s}});
    EXPECT_EQ(workspace_.openings().first().application,
              workspace_.applicationWithBundleIdentifier(test::chrome).value_or(Application()).url);
    EXPECT_TRUE(alert_.shown().isEmpty());
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Open] Opening a chromium profile from the menu with 0 links"_s));
}

TEST_F(ProfileOpenerTest, APrivateFirefoxWithThreeLinksIsThreeStartsInOrder)
{
    open(u"f:private"_s, {u"https://a.example/"_s, u"https://b.example/"_s, u"https://c.example/"_s}, Source::intent);
    EXPECT_EQ(starts(), QList<QStringList>({{u"--private-window"_s, u"https://a.example/"_s},
                                            {u"--private-window"_s, u"https://b.example/"_s},
                                            {u"--private-window"_s, u"https://c.example/"_s}}));
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Open] Opening a firefox profile from the intent with 3 links"_s));
}

TEST_F(ProfileOpenerTest, EachStartWaitsForTheOneBefore)
{
    workspace_.holdOpenings();
    ProfileOpener opener = this->opener();
    opener.open(test::profiles(u"f:private"_s).first(), {QUrl(u"https://a.example/"_s), QUrl(u"https://b.example/"_s)},
                Source::menu);
    EXPECT_EQ(starts().size(), 1);
    ASSERT_TRUE(workspace_.takeOn());
    EXPECT_EQ(starts().size(), 2);
    ASSERT_TRUE(workspace_.takeOn());
    EXPECT_FALSE(workspace_.takeOn());
}

TEST_F(ProfileOpenerTest, ARequestDoesNotWaitForAnother)
{
    workspace_.holdOpenings();
    ProfileOpener opener = this->opener();
    opener.open(test::profiles(u"c:1"_s).first(), {}, Source::menu);
    opener.open(test::profiles(u"c:2"_s).first(), {}, Source::shortcut);
    EXPECT_EQ(starts().size(), 2);
    while (workspace_.takeOn()) {
    }
}

TEST_F(ProfileOpenerTest, TheLogCountsLinksBeforeTheyAreSortedOut)
{
    open(u"c:1"_s, {u"mailto:a@example.com"_s, u"mailto:b@example.com"_s}, Source::shortcut);
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Open] Opening a chromium profile from the shortcut with 2 links"_s));
    EXPECT_EQ(starts(), QList<QStringList>{{u"--profile-directory=1"_s}});
}

TEST_F(ProfileOpenerTest, ABrowserThatWasRemovedIsToldAndNothingStarts)
{
    open(u"b:1"_s);
    EXPECT_EQ(alert_.shown(), QStringList(alertTitle + u"The browser of this profile isn't installed."_s));
    EXPECT_TRUE(starts().isEmpty());
    EXPECT_TRUE(log_.takeLines().isEmpty());
}

TEST_F(ProfileOpenerTest, ARefusedStartIsLoggedAndToldAndEndsTheRequest)
{
    workspace_.refuseOpening(2, u"No memory."_s);
    open(u"f:private"_s, {u"https://a.example/"_s, u"https://b.example/"_s, u"https://c.example/"_s});
    EXPECT_EQ(starts().size(), 2);
    EXPECT_EQ(alert_.shown(), QStringList(alertTitle + u"No memory."_s));
    EXPECT_EQ(log_.takeLines().last(), u"[Open] error: Opening failed: No memory."_s);
}

TEST_F(ProfileOpenerTest, SafarisProfilesGoToSafari)
{
    open(u"s:Work"_s, {u"https://a.example/"_s});
    open(u"s:private"_s);
    EXPECT_EQ(safari_.calls().size(), 2);
    EXPECT_TRUE(safari_.calls().first().startsWith(u"com.apple.Safari: open Work "_s));
    EXPECT_TRUE(safari_.calls().first().endsWith(u" https://a.example/"_s));
    EXPECT_EQ(safari_.calls().last(), u"com.apple.Safari: private "_s);
    EXPECT_TRUE(starts().isEmpty());
    EXPECT_EQ(log_.takeLines().first(), u"[Open] Opening a safari profile from the menu with 1 links"_s);
}

TEST_F(ProfileOpenerTest, SafarisFailureIsTold)
{
    safari_.refuse(u"Safari didn't answer."_s);
    open(u"s:Work"_s);
    EXPECT_EQ(alert_.shown(), QStringList(alertTitle + u"Safari didn't answer."_s));
    EXPECT_EQ(log_.takeLines().last(), u"[Open] error: Opening failed: Safari didn't answer."_s);
}

TEST_F(ProfileOpenerTest, WithoutSafariItsProfilesAreRefused)
{
    ProfileOpener opener = this->opener();
    opener.open(test::profiles(u"s:Work"_s).first(), {}, Source::menu);
    EXPECT_EQ(alert_.shown(), QStringList(alertTitle + u"Safari's profiles can only be opened on a Mac."_s));
}

TEST_F(ProfileOpenerTest, ALinkOpensTheProfileThatItNames)
{
    const QString link = LaunchLink::forProfile(store_.profilesOf(test::chrome).first()).text();
    openLink(link + u"&url=https://a.example/&url=mailto:b@example.com"_s);
    EXPECT_EQ(starts(), (QList<QStringList>{{u"--profile-directory=Profile 1"_s, u"https://a.example/"_s}}));
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Open] Opening a chromium profile from the link with 1 links"_s));
}

TEST_F(ProfileOpenerTest, ALinkOpensAProfileThatIsNotListed)
{
    openLink(u"vantrel://?browserBundleIdentifier=com.google.Chrome&profile=com.google.Chrome/chromium:Profile%209"_s);
    EXPECT_EQ(starts(), QList<QStringList>{{u"--profile-directory=Profile 9"_s}});
}

TEST_F(ProfileOpenerTest, ALinkFindsTheUsersOwnName)
{
    store_.rename(store_.profilesOf(test::chrome).first(), u"Office"_s);
    openLink(u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Office"_s);
    EXPECT_EQ(starts(), QList<QStringList>{{u"--profile-directory=Profile 1"_s}});
}

TEST_F(ProfileOpenerTest, ALinkThatNamesNoProfileIsTold)
{
    openLink(u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Gone"_s);
    EXPECT_EQ(alert_.shown(),
              QStringList(alertTitle + u"Vantrel doesn't know the profile “Gone”. Check that it still exists in the "
                                       "browser, then make its launcher app again."_s));
    EXPECT_TRUE(starts().isEmpty());
}

TEST_F(ProfileOpenerTest, WhatIsNoProfileLinkIsOnlyLoggedAndNotShownThere)
{
    openLink(u"https://secret.example/"_s);
    openLink(u"vantrel://"_s);
    EXPECT_EQ(log_.takeLines(), QStringList(2, u"[Open] error: Not a profile link: <private>"_s));
    log_.setShowsPrivateParts(true);
    openLink(u"https://secret.example/"_s);
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Open] error: Not a profile link: https://secret.example/"_s));
    EXPECT_TRUE(alert_.shown().isEmpty());
    EXPECT_TRUE(starts().isEmpty());
}

} // namespace
} // namespace vantrel
