#include "Tests/Vantrel/CommandLine/CommandLineCase.h"

using namespace Qt::StringLiterals;

namespace vantrel {

/// How GoogleTest shows a start.
void PrintTo(const test::FakeWorkspace::Opening &opening, std::ostream *stream)
{
    printDebugForm(QStringList(opening.application.path()) + opening.arguments, stream);
}

namespace {

const QString chromeWork = u"com.google.Chrome/chromium:Default"_s;
const QString privateInFirefox = u"org.mozilla.firefox/private"_s;
const QString link = u"https://example.com/?a=%20&b"_s;

class OpenCommandTest : public test::CommandLineCase {
protected:
    using Openings = QList<test::FakeWorkspace::Opening>;

    OpenCommandTest()
    {
        planted.plantChromium(test::chrome, u"Google Chrome"_s, {{u"Default"_s, u"Work"_s}});
        planted.plantChromium(test::edge, u"Edge"_s, {{u"Profile 2"_s, u"Work"_s}});
        planted.plantFirefox(test::firefox, u"Firefox"_s, {{u"/my profile"_s, u"Fox"_s}});
    }

    /// The arguments with which a browser was started, one list a start.
    [[nodiscard]] QList<QStringList> starts(const QString &bundleID) const
    {
        QList<QStringList> arguments;
        for (const auto &[application, given] : planted.workspace.openings()) {
            EXPECT_EQ(application, planted.workspace.applicationWithBundleIdentifier(bundleID)->url);
            arguments.append(given);
        }
        return arguments;
    }
};

TEST_F(OpenCommandTest, AChromiumProfileIsOpenedWithAllLinksAtOnce)
{
    EXPECT_EQ(run({u"open"_s, chromeWork, link, u"file:///tmp/a b"_s}), done());
    EXPECT_EQ(starts(test::chrome),
              (QList<QStringList>{{u"--profile-directory=Default"_s, link, u"file:///tmp/a%20b"_s}}));
}

TEST_F(OpenCommandTest, APrivateWindowHasTheBrowsersOwnSwitch)
{
    EXPECT_EQ(run({u"open"_s, u"com.google.Chrome/private"_s, link}), done());
    EXPECT_EQ(starts(test::chrome), (QList<QStringList>{{u"--incognito"_s, link}}));
}

TEST_F(OpenCommandTest, EdgesPrivateWindowHasAnotherSwitch)
{
    EXPECT_EQ(run({u"open"_s, u"InPrivate Window"_s}), done());
    EXPECT_EQ(starts(test::edge), (QList<QStringList>{{u"--inprivate"_s}}));
}

TEST_F(OpenCommandTest, AFirefoxProfileIsOpenedByItsPath)
{
    EXPECT_EQ(run({u"open"_s, u"Fox"_s, link, link}), done());
    EXPECT_EQ(starts(test::firefox), (QList<QStringList>{{u"--profile"_s, u"/my profile"_s, link, link}}));
}

TEST_F(OpenCommandTest, AFirefoxPrivateWindowIsOpenedWithoutLinks)
{
    EXPECT_EQ(run({u"open"_s, privateInFirefox}), done());
    EXPECT_EQ(starts(test::firefox), (QList<QStringList>{{u"--private-window"_s}}));
}

TEST_F(OpenCommandTest, EachLinkOfAFirefoxPrivateWindowWaitsForTheStartBeforeIt)
{
    planted.workspace.holdOpenings();
    const Running running({u"open"_s, privateInFirefox, u"https://a/"_s, u"https://b/"_s, u"https://c/"_s}, *this);
    QList<QStringList> expected;
    for (const QString &url : {u"https://a/"_s, u"https://b/"_s, u"https://c/"_s}) {
        expected.append({u"--private-window"_s, url});
        EXPECT_EQ(starts(test::firefox), expected);
        EXPECT_EQ(running.answer().status, std::nullopt);
        ASSERT_TRUE(planted.workspace.takeOn());
    }
    EXPECT_EQ(starts(test::firefox), expected);
    EXPECT_EQ(running.answer(), done());
    EXPECT_FALSE(planted.workspace.takeOn());
}

TEST_F(OpenCommandTest, AfterAFailedStartNoFurtherOneFollows)
{
    planted.workspace.refuseOpening(2, u"It is broken."_s);
    EXPECT_EQ(run({u"open"_s, privateInFirefox, u"https://a/"_s, u"https://b/"_s, u"https://c/"_s}),
              failed(u"It is broken."_s));
    EXPECT_EQ(starts(test::firefox),
              (QList<QStringList>{{u"--private-window"_s, u"https://a/"_s}, {u"--private-window"_s, u"https://b/"_s}}));
}

TEST_F(OpenCommandTest, AFailureThatComesLateIsToldToo)
{
    planted.workspace.refuse(test::chrome, u"It is broken."_s);
    planted.workspace.holdOpenings();
    const Running running({u"open"_s, chromeWork}, *this);
    EXPECT_EQ(running.answer().status, std::nullopt);
    ASSERT_TRUE(planted.workspace.takeOn());
    EXPECT_EQ(running.answer(), failed(u"It is broken."_s));
}

TEST_F(OpenCommandTest, WhatWouldBeStartedIsPrintedInstead)
{
    EXPECT_EQ(run({u"open"_s, u"--dry-run"_s, chromeWork, link}),
              done(uR"(["/applications/com.google.Chrome/program","--profile-directory=Default",)"
                   R"("https://example.com/?a=%20&b"])"_s +
                   u'\n'));
    EXPECT_EQ(run({u"open"_s, privateInFirefox, u"https://a/"_s, u"--dry-run"_s, u"https://b/"_s}),
              done(uR"(["/applications/org.mozilla.firefox/program","--private-window","https://a/"])"
                   "\n"
                   R"(["/applications/org.mozilla.firefox/program","--private-window","https://b/"])"
                   "\n"_s));
    EXPECT_EQ(planted.workspace.openings(), Openings());
}

/// Knows the applications of another, but not their command lines.
class WithoutCommandLines final : public Workspace {
public:
    explicit WithoutCommandLines(Workspace &other) : other_(other) {}

    std::optional<Application> applicationWithBundleIdentifier(const QString &bundleID) const override
    {
        return other_.applicationWithBundleIdentifier(bundleID);
    }
    QStringList searchedNames(const QString &bundleID) const override { return other_.searchedNames(bundleID); }
    std::expected<QStringList, PlatformError> commandLine(const QUrl &, const QStringList &) const override
    {
        return std::unexpected(PlatformError{u"It was removed\nmeanwhile."_s});
    }
    QCoro::Task<std::expected<void, PlatformError>> openApplication(QUrl application, QStringList arguments) override
    {
        return other_.openApplication(std::move(application), std::move(arguments));
    }

private:
    Workspace &other_;
};

TEST_F(OpenCommandTest, WithoutACommandLineThereIsNothingToPrint)
{
    WithoutCommandLines broken(planted.workspace);
    workspace = &broken;
    EXPECT_EQ(run({u"open"_s, u"--dry-run"_s, privateInFirefox, u"https://a/"_s, u"https://b/"_s}),
              failed(u"It was removed\nmeanwhile."_s));
    EXPECT_EQ(run({u"open"_s, chromeWork}), done());
}

TEST_F(OpenCommandTest, SafariCannotBeOpenedYet)
{
    planted.workspace.install(test::safari, u"Safari"_s);
    writeSavedState(R"({"searchedSafari": [], "hidden": [], "customNames": {}, "profiles": [
        {"browserBundleID": "com.apple.Safari", "name": "Home",
         "target": {"safariProfile": {"name": "Home", "index": 0}}}]})");
    for (const QString &profile :
         {u"com.apple.Safari/private"_s, u"com.apple.Safari/safari:Home"_s, u"Safari – Home"_s})
        EXPECT_EQ(run({u"open"_s, profile, link}),
                  failed(u"Safari's profiles can't be opened from the command line yet."_s));
    EXPECT_EQ(planted.workspace.openings(), Openings());
}

TEST_F(OpenCommandTest, HiddenProfilesCanBeOpened)
{
    writeSavedState(R"({"searchedSafari": [], "hidden": ["com.google.Chrome/chromium:Default"], "customNames": {},
                        "profiles": []})");
    EXPECT_EQ(run({u"open"_s, chromeWork}), done());
    EXPECT_EQ(planted.workspace.openings().size(), 1);
}

TEST_F(OpenCommandTest, AFailureIsHandedToTheAppWithItsLinksWhereNobodyReadsMessages)
{
    const QString gone = u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Gone"_s;
    const QString whole = gone + u"&url=https://a.example/&url=https://example.com/?q%3D1"_s;
    const QStringList words{u"open"_s, u"--alert"_s, gone + u"&url=https://a.example/"_s, u"https://example.com/?q=1"_s,
                            u"mailto:x"_s};
    // Started when it doesn't run; either way the command has failed.
    EXPECT_EQ(run(words).status, ExitStatus::failed);
    EXPECT_EQ(app.takeCalls(), QStringList({u"send open "_s + whole, u"start open "_s + whole}));
    app.setRunning(true);
    EXPECT_EQ(run(words).status, ExitStatus::failed);
    EXPECT_EQ(app.takeCalls(), QStringList(u"send open "_s + whole));
}

TEST_F(OpenCommandTest, TheAppIsLeftAloneWhenAllGoesWellOrNothingWasSaidOfIt)
{
    const QString work = u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Work"_s;
    EXPECT_EQ(run({u"open"_s, u"--alert"_s, work}), done());
    EXPECT_EQ(run({u"open"_s, work + u"x"_s}).status, ExitStatus::failed);
    EXPECT_EQ(run({u"open"_s, u"--alert"_s, u"Nobody"_s}).status, ExitStatus::failed);
    EXPECT_EQ(app.takeCalls(), QStringList());
}

TEST_F(OpenCommandTest, AnUnknownProfileIsNotOpened)
{
    EXPECT_EQ(run({u"open"_s, u"Chrome – W"_s, link}),
              failed(u"There is no profile “Chrome – W”. These are there:\n"
                     "  Google Chrome – Work  com.google.Chrome/chromium:Default"_s));
    EXPECT_EQ(run({u"open"_s, u"Work"_s}),
              failed(u"More than one profile is called “Work”. Name one by its title or its id:\n"
                     "  Edge – Work  com.microsoft.edgemac/chromium:Profile 2\n"
                     "  Google Chrome – Work  com.google.Chrome/chromium:Default"_s));
    EXPECT_EQ(planted.workspace.openings(), Openings());
}

} // namespace
} // namespace vantrel
