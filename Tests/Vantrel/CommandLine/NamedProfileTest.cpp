#include "Tests/Vantrel/CommandLine/CommandLineCase.h"

#include <QMutex>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString chromeWork = u"com.google.Chrome/chromium:Default"_s;

/// Data folders that remember for which browsers they were asked.
class AskedBrowserData final : public BrowserData {
public:
    explicit AskedBrowserData(const BrowserData &data) : data_(data) {}

    QList<BrowserDataFolder> dataFolders(const QString &bundleID) const override
    {
        const QMutexLocker lock(&mutex_);
        asked_.append(bundleID);
        return data_.dataFolders(bundleID);
    }

    /// The browsers asked for since the last time, sorted.
    QStringList takeAsked()
    {
        QStringList asked = std::exchange(asked_, {});
        asked.sort();
        return asked;
    }

private:
    const BrowserData &data_;
    mutable QMutex mutex_;
    mutable QStringList asked_;
};

/// Profiles as `open` and `link` find them.
class NamedProfileTest : public test::CommandLineCase {
protected:
    NamedProfileTest()
    {
        planted.plantChromium(test::chrome, u"Google Chrome"_s, {{u"Default"_s, u"Work"_s}});
        planted.plantFirefox(test::firefox, u"Firefox"_s, {{u"/p"_s, u"Fox"_s}});
        browserData = &asked_;
    }

    [[nodiscard]] QStringList askedFor(const QString &profile)
    {
        const Answer answer = run({u"link"_s, profile});
        EXPECT_TRUE(answer.status.has_value());
        return asked_.takeAsked();
    }

    /// The arguments of the only start.
    [[nodiscard]] QStringList startWith(const QStringList &words)
    {
        EXPECT_EQ(run(QStringList(u"open"_s) + words).status, ExitStatus::done);
        const auto openings = planted.workspace.openings();
        return openings.size() == 1 ? openings.first().arguments : QStringList(u"%1 starts"_s.arg(openings.size()));
    }

    AskedBrowserData asked_{planted.data};
};

TEST_F(NamedProfileTest, NoMoreBrowsersAreReadThanTheNameMakesNecessary)
{
    const QStringList both{test::chrome, test::firefox};
    const QString linkStart = u"vantrel://?browserBundleIdentifier=org.mozilla.firefox&"_s;
    EXPECT_EQ(askedFor(chromeWork), QStringList(test::chrome));
    EXPECT_EQ(askedFor(u"org.mozilla.firefox/private"_s), QStringList(test::firefox));
    EXPECT_EQ(askedFor(linkStart + u"profileName=Fox"_s), QStringList(test::firefox));
    EXPECT_EQ(askedFor(linkStart + u"profileName=Gone"_s), QStringList(test::firefox));
    EXPECT_EQ(askedFor(u"Fox"_s), both);
    EXPECT_EQ(askedFor(u"nowhere"_s), both);
    EXPECT_EQ(askedFor(u"vantrel://"_s), QStringList());
}

TEST_F(NamedProfileTest, AnIdThatIsNoneIsLookedForAsANameInAllBrowsers)
{
    EXPECT_EQ(askedFor(u"com.google.Chrome/chromium:Gone"_s), (QStringList{test::chrome, test::chrome, test::firefox}));
    const Answer answer = run({u"link"_s, u"com.google.Chrome/chromium:Gone"_s});
    EXPECT_EQ(answer.status, ExitStatus::failed);
    EXPECT_TRUE(answer.messages.contains(u"Firefox – Fox"_s)) << "All candidates are shown.";
}

TEST_F(NamedProfileTest, ANameThatLooksLikeAnIdIsFoundInAnotherBrowser)
{
    writeSavedState(R"({"searchedSafari": [], "hidden": [], "profiles": [],
                        "customNames": {"org.mozilla.firefox/firefox:/p": "com.google.Chrome/mine"}})");
    EXPECT_EQ(startWith({u"com.google.Chrome/mine"_s}), (QStringList{u"--profile"_s, u"/p"_s}));
}

TEST_F(NamedProfileTest, TheLinksOfTheLinkComeBeforeThoseGivenBehindIt)
{
    const QString link = u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Work"
                         "&url=https://a/&url=https://b/"_s;
    EXPECT_EQ(startWith({link, u"https://c/"_s}),
              (QStringList{u"--profile-directory=Default"_s, u"https://a/"_s, u"https://b/"_s, u"https://c/"_s}));
}

TEST_F(NamedProfileTest, LinksThatBrowsersAreNotGivenAreLeftOutAndTold)
{
    const QString note = u"vantrel: Left out “%1”: only http, https and file links can be opened.\n"_s;
    const Answer answer =
        run({u"open"_s, chromeWork, u"javascript:alert(1)"_s, u"https://a/"_s, u"mailto:a\nb@example.com"_s});
    EXPECT_EQ(
        answer,
        (Answer{ExitStatus::done, {}, note.arg(u"javascript:alert(1)"_s) + note.arg(u"mailto:a\\nb@example.com"_s)}));
    EXPECT_EQ(planted.workspace.openings().value(0).arguments,
              (QStringList{u"--profile-directory=Default"_s, u"https://a/"_s}));
}

TEST_F(NamedProfileTest, FilesAreLookedForInTheWorkingDirectory)
{
    const QString file = planted.folder.write(u"page.html"_s);
    EXPECT_EQ(startWith({chromeWork, u"page.html"_s}),
              (QStringList{u"--profile-directory=Default"_s, u"file://"_s + file}));
}

TEST_F(NamedProfileTest, AProfileOfABrowserThatWasRemovedIsKnownByItsLinkOnly)
{
    writeSavedState(R"({"searchedSafari": [], "hidden": [], "customNames": {}, "profiles": [
        {"browserBundleID": "com.brave.Browser", "name": "Brave one", "target": {"chromium": {"folder": "1"}}}]})");
    EXPECT_EQ(run({u"open"_s, u"vantrel://?browserBundleIdentifier=com.brave.Browser&profileName=Brave%20one"_s}),
              failed(u"The browser of this profile isn't installed."_s));
    EXPECT_EQ(run({u"open"_s, u"vantrel://?browserBundleIdentifier=com.brave.Browser&profileName=Private"_s}),
              failed(u"The browser of this profile isn't installed."_s));
    EXPECT_TRUE(run({u"open"_s, u"Brave one"_s}).messages.startsWith(u"vantrel: There is no profile “Brave one”."_s));
    EXPECT_TRUE(planted.workspace.openings().isEmpty());
}

TEST_F(NamedProfileTest, WhatStoodInTheWayIsToldOnlyWhenTheProfileIsNotFound)
{
    const QString path = planted.plantUnreadable(test::brave, u"Brave"_s);
    EXPECT_EQ(run({u"open"_s, u"Fox"_s}), done());
    const Answer answer = run({u"open"_s, u"nowhere"_s});
    EXPECT_TRUE(answer.messages.startsWith(
        u"vantrel: Brave's profiles can't be read: “%1”: Not a directory.\nvantrel: There is no profile"_s.arg(path)))
        << answer.messages.toStdString();
}

TEST_F(NamedProfileTest, ADamagedSavedStateIsToldWhenTheProfileIsNotFound)
{
    writeSavedState("{}");
    EXPECT_EQ(run({u"open"_s, u"Fox"_s}), done());
    EXPECT_TRUE(run({u"open"_s, u"nowhere"_s}).messages.startsWith("vantrel: Saved profiles unreadable"_L1));
}

} // namespace
} // namespace vantrel
