#include "Vantrel/Launchers/LauncherTask.h"

#include "Tests/Fakes/FakeLauncherWriter.h"
#include "Tests/Vantrel/CommandLine/CommandLineCase.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Vantrel/CommandLine/LauncherCommand.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString work = u"com.google.Chrome/chromium:Default"_s;
const QString usualPlace = u"/usual/com.google.Chrome_chromium:Default"_s;

class NoIcons final : public ApplicationIcons {
public:
    [[nodiscard]] QImage icon(const QUrl & /*application*/, int /*pixels*/) const override { return {}; }
};

class LauncherTaskTest : public test::CommandLineCase {
protected:
    LauncherTaskTest()
    {
        planted.plantChromium(test::chrome, u"Google Chrome"_s,
                              {{u"Default"_s, u"Work"_s}, {u"Profile 1"_s, u"Home"_s}});
    }

    [[nodiscard]] Answer launcher(const QStringList &arguments)
    {
        test::TemporaryStream results;
        test::TemporaryStream messages;
        Output output(results.file(), messages.file());
        CommandContext context{.workspace = planted.workspace,
                               .browserData = planted.data,
                               .reader = reader,
                               .app = app,
                               .launchers = launchers,
                               .savedStatePath = planted.folder.path(u"profiles.json"_s),
                               .workingDirectory = planted.folder.path(),
                               .output = output};
        auto parsed = CommandArguments::parse(LauncherCommand::syntax(), arguments, output);
        if (!parsed)
            return {parsed.error(), results.text(), messages.text()};
        const LauncherTask task{writer, icons};
        const ExitStatus status = QCoro::waitFor(task.run(*parsed, context));
        return {status, results.text(), messages.text()};
    }

    test::EventProgram program;
    test::FakeLauncherWriter writer;
    NoIcons icons;
};

TEST_F(LauncherTaskTest, AProfilesLauncherIsMadeAndItsPlacePrinted)
{
    for (const QString &name : {u"Work"_s, work, u"Google Chrome – Work"_s})
        EXPECT_EQ(launcher({name}), done(usualPlace + u'\n'));
    EXPECT_EQ(writer.launchers().keys(), QStringList(usualPlace));
    EXPECT_EQ(writer.launchers().value(usualPlace).title, u"Google Chrome – Work"_s);
}

TEST_F(LauncherTaskTest, TheUsersOwnNameIsInTheTitle)
{
    writeSavedState(R"({"profiles":[],"hidden":[],"customNames":{"com.google.Chrome/chromium:Default":"Büro"},)"
                    R"("searchedSafari":[]})");
    ASSERT_EQ(launcher({work}), done(usualPlace + u'\n'));
    EXPECT_EQ(writer.launchers().value(usualPlace).title, u"Google Chrome – Büro"_s);
    EXPECT_EQ(writer.launchers().value(usualPlace).link.profileName, u"Work"_s);
}

TEST_F(LauncherTaskTest, AnotherFolderIsTakenFromWhereTheUserIs)
{
    const QString folder = planted.folder.makeFolder(u"Desk top"_s);
    const QString place = folder + u"/com.google.Chrome_chromium:Default"_s;
    EXPECT_EQ(launcher({u"--output"_s, u"Desk top/"_s, u"Work"_s}), done(place + u'\n'));
    EXPECT_EQ(launcher({u"--output="_s + folder, u"Work"_s}), done(place + u'\n'));
    EXPECT_EQ(writer.launchers().keys(), QStringList(place));
    EXPECT_EQ(launcher({u"--remove"_s, u"--output"_s, folder, u"Work"_s}), done());
    EXPECT_TRUE(writer.launchers().isEmpty());
}

TEST_F(LauncherTaskTest, AFolderThatIsNotThereIsNotMade)
{
    EXPECT_EQ(launcher({u"--output"_s, u"no\nwhere"_s, u"Work"_s}), failed(u"There is no folder “no\\nwhere”."_s));
    // To Qt, the folder of what is in the program.
    EXPECT_EQ(launcher({u"--output"_s, u":"_s, u"Work"_s}), failed(u"There is no folder “:”."_s));
    EXPECT_EQ(launcher({u"--output"_s, u""_s, u"Work"_s}), failed(u"There is no folder “”."_s));
    planted.folder.write(u"file"_s);
    EXPECT_EQ(launcher({u"--output"_s, u"file"_s, u"Work"_s}), failed(u"There is no folder “file”."_s));
    EXPECT_TRUE(writer.launchers().isEmpty());
}

TEST_F(LauncherTaskTest, ALauncherIsRemovedByAnyNameOfItsProfile)
{
    const QString link = LaunchLink{test::chrome, u"Work"_s, work, {}}.text();
    for (const QString &name : {u"Work"_s, work, u"Google Chrome – Work"_s, link}) {
        std::ignore = launcher({work});
        EXPECT_EQ(launcher({u"--remove"_s, name}), done()) << name.toStdString();
        EXPECT_TRUE(writer.launchers().isEmpty());
    }
    EXPECT_EQ(launcher({u"--remove"_s, u"Work"_s}), failed(u"There is no launcher at "_s + usualPlace));
}

TEST_F(LauncherTaskTest, TheLauncherOfAProfileThatIsGoneIsRemovedByItsId)
{
    std::ignore = launcher({u"Home"_s});
    const QString id = u"com.google.Chrome/chromium:Profile 1"_s;
    planted.workspace.uninstall(test::chrome);
    EXPECT_EQ(launcher({u"--remove"_s, id}), done());
    EXPECT_TRUE(writer.launchers().isEmpty());
    EXPECT_EQ(launcher({u"--remove"_s, id}).status, ExitStatus::failed);
}

TEST_F(LauncherTaskTest, AFailureIsTold)
{
    writer.refuse(u"No."_s);
    EXPECT_EQ(launcher({u"Work"_s}), failed(u"No."_s));
    EXPECT_EQ(launcher({u"--remove"_s, u"Work"_s}), failed(u"No."_s));
    EXPECT_EQ(launcher({u"Nobody"_s}).status, ExitStatus::failed);
    EXPECT_EQ(launcher({}).status, ExitStatus::wrongUsage);
    EXPECT_EQ(launcher({u"Work"_s, u"Home"_s}).status, ExitStatus::wrongUsage);
}

} // namespace
} // namespace vantrel
