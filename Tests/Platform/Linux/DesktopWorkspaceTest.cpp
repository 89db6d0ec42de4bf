#include "Platform/Linux/DesktopWorkspace.h"

#include "Tests/Contract/WorkspaceContract.h"
#include "Tests/Platform/Linux/PlantedHome.h"
#include "Tests/Platform/Linux/ReportChannel.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Desktop entries in a home of their own, which start a program that reports.
class DesktopSystem {
public:
    DesktopSystem() : workspace_(InstallationFinder(home_.environment()), variables(), activation_)
    {
        home_.write(u"share/applications/google-chrome.desktop"_s, test::desktopEntry(test::reportingProgram()));
        // Executable as far as anybody can tell without starting it.
        const QString program = home_.write(u"bin/damaged"_s, "#!/no/such/interpreter\n");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
        home_.write(u"share/applications/brave-browser.desktop"_s, test::desktopEntry(program));
    }

    Workspace &workspace() { return workspace_; }
    static QString installed() { return test::chrome; }
    static QString missing() { return test::firefox; }
    static QString damaged() { return test::brave; }

    QStringList startedArguments()
    {
        const auto report = channel_.next();
        return report ? report->givenArguments() : QStringList(u"The program did not report."_s);
    }

private:
    const QProcessEnvironment &variables()
    {
        channel_.addTo(home_.variables());
        return home_.variables();
    }

    test::PlantedHome home_;
    test::ReportChannel channel_;
    ActivationSource activation_;
    DesktopWorkspace workspace_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Desktop, WorkspaceContract, DesktopSystem);

} // namespace test

namespace {

class DesktopWorkspaceTest : public testing::Test {
protected:
    DesktopWorkspaceTest() { channel_.addTo(home_.variables()); }

    [[nodiscard]] QString writeEntry(const QByteArray &keys, const QString &options = u" %U"_s) const
    {
        return home_.write(u"share/applications/google-chrome.desktop"_s,
                           test::desktopEntry(test::reportingProgram() + options, keys));
    }

    [[nodiscard]] DesktopWorkspace workspace()
    {
        return {InstallationFinder(home_.environment()), home_.variables(), activation_};
    }

    /// How the program of an entry is started.
    [[nodiscard]] test::StartReport report(const QString &entry, const QStringList &arguments = {})
    {
        DesktopWorkspace desktop = workspace();
        const auto started = QCoro::waitFor(desktop.openApplication(QUrl::fromLocalFile(entry), arguments));
        EXPECT_TRUE(started.has_value()) << started.error().message.toStdString();
        const auto report = channel_.next();
        EXPECT_TRUE(report.has_value()) << "The program did not report.";
        return report.value_or(test::StartReport());
    }

    [[nodiscard]] static QString unusable(const QString &path)
    {
        return path + " is no longer a usable application entry. Check that the browser is installed."_L1;
    }

    test::PlantedHome home_;
    test::ReportChannel channel_;
    ActivationSource activation_;

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
};

TEST_F(DesktopWorkspaceTest, AnApplicationIsItsEntry)
{
    const QString path = writeEntry("Name[de]=Stellvertreter\n");
    EXPECT_EQ(workspace().applicationWithBundleIdentifier(test::chrome),
              (Application{QUrl::fromLocalFile(path), u"Stand-in"_s}));
}

TEST_F(DesktopWorkspaceTest, TheNamesLookedForAreThoseOfEntryFiles)
{
    EXPECT_EQ(workspace().searchedNames(test::chrome),
              (QStringList{u"google-chrome.desktop"_s, u"com.google.Chrome.desktop"_s}));
    EXPECT_EQ(workspace().searchedNames(test::safari), QStringList());
}

TEST_F(DesktopWorkspaceTest, AnApplicationStartsInTheHomeUnlessItsEntryNamesAnotherFolder)
{
    EXPECT_EQ(report(writeEntry({})).workingDirectory, QFile::encodeName(home_.path()));
    const QByteArray elsewhere = home_.makeFolder(u"else where"_s).toUtf8();
    EXPECT_EQ(report(writeEntry("Path=" + elsewhere + '\n')).workingDirectory, elsewhere);
    for (const QByteArray unusable : {"/no/such/folder", "/bin/sh"})
        EXPECT_EQ(report(writeEntry("Path=" + unusable + '\n')).workingDirectory, QFile::encodeName(home_.path()));
}

TEST_F(DesktopWorkspaceTest, AnApplicationGetsTheVariablesWithoutThoseOfThisProcess)
{
    home_.variables().insert(u"DISPLAY"_s, u":7"_s);
    home_.variables().insert(u"INVOCATION_ID"_s, u"0123"_s);
    home_.variables().insert(u"GIO_LAUNCHED_DESKTOP_FILE"_s, u"/share/vantrel.desktop"_s);
    const test::StartReport started = report(writeEntry({}));
    EXPECT_EQ(started.variable("DISPLAY"), ":7");
    EXPECT_EQ(started.variable("HOME"), home_.path().toUtf8());
    EXPECT_EQ(started.variable("INVOCATION_ID"), std::nullopt);
    EXPECT_EQ(started.variable("GIO_LAUNCHED_DESKTOP_FILE"), std::nullopt);
}

TEST_F(DesktopWorkspaceTest, AnApplicationGetsWhatLetsItComeToTheFront)
{
    home_.variables().insert(u"XDG_ACTIVATION_TOKEN"_s, u"of an earlier start"_s);
    const QString entry = writeEntry({});
    EXPECT_EQ(report(entry).variable("XDG_ACTIVATION_TOKEN"), std::nullopt);
    activation_.noteToken(u"token"_s);
    EXPECT_EQ(report(entry).variable("XDG_ACTIVATION_TOKEN"), "token");
    EXPECT_EQ(report(entry).variable("XDG_ACTIVATION_TOKEN"), std::nullopt);
}

TEST_F(DesktopWorkspaceTest, WhatIsStartedIsWhatTheCommandLineSays)
{
    const QString entry = writeEntry("Icon=my icon\n", u" --name=%c %i \"%U\" --last"_s);
    const QStringList arguments{u"--profile-directory=Profile 1"_s, u"https://example.com/?a=%20&b"_s};
    const auto line = workspace().commandLine(QUrl::fromLocalFile(entry), arguments);
    ASSERT_TRUE(line.has_value());
    EXPECT_EQ(*line, (QStringList{test::reportingProgram(), u"--name=Stand-in"_s, u"--icon"_s, u"my icon"_s} +
                      arguments + QStringList(u"--last"_s)));
    EXPECT_EQ(report(entry, arguments).givenArguments(), line->sliced(1));
}

TEST_F(DesktopWorkspaceTest, AnEntryThatWasRemovedOrDamagedSinceItWasFoundIsAnError)
{
    const QString path = writeEntry({});
    const QUrl url = workspace().applicationWithBundleIdentifier(test::chrome).value_or(Application()).url;
    home_.write(u"share/applications/google-chrome.desktop"_s, "no entry");
    const auto damaged = workspace().commandLine(url, {});
    ASSERT_FALSE(damaged.has_value());
    EXPECT_EQ(damaged.error().message, unusable(path));
    ASSERT_TRUE(QFile::remove(path));
    DesktopWorkspace desktop = workspace();
    const auto removed = QCoro::waitFor(desktop.openApplication(url, {}));
    ASSERT_FALSE(removed.has_value());
    EXPECT_EQ(removed.error().message, unusable(path));
}

TEST_F(DesktopWorkspaceTest, AFlatpaksProfileIsNamedAsItsSandboxSeesItWhereverTheHomeIs)
{
    const QString entry = home_.installEntry(u"org.mozilla.firefox.desktop"_s, "X-Flatpak=org.mozilla.firefox\n");
    const QString profile = home_.path(u".var/app/org.mozilla.firefox/.mozilla/firefox/p"_s);
    for (const QString &end : {QString(), u"/"_s}) {
        home_.variables().insert(u"HOME"_s, home_.path() + end);
        const auto line = workspace().commandLine(QUrl::fromLocalFile(entry), {u"--profile"_s, profile});
        ASSERT_TRUE(line.has_value());
        EXPECT_EQ(line->last(), home_.path(u".mozilla/firefox/p"_s)) << "HOME ends with \"" << end.toStdString() << '"';
    }
}

} // namespace
} // namespace vantrel
