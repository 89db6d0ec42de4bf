#include "Vantrel/CommandLine/CommandLine.h"

#include "Tests/Vantrel/CommandLine/CommandLineCase.h"

#include <QCoreApplication>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class CommandLineTest : public test::CommandLineCase {
protected:
    /// The answer of a wrong usage.
    static Answer wrong(const QString &message)
    {
        return {ExitStatus::wrongUsage, {}, u"vantrel: %1\nTry “vantrel --help”.\n"_s.arg(message)};
    }
};

TEST_F(CommandLineTest, TheOverviewNamesEveryCommand)
{
    const Answer overview = run({u"--help"_s});
    EXPECT_EQ(overview.status, ExitStatus::done);
    EXPECT_EQ(overview.messages, QString());
    const QStringList lines = overview.results.split(u'\n');
    EXPECT_EQ(lines.first(), u"Usage: vantrel [COMMAND …]"_s);
    QStringList commands;
    for (const QString &line : lines) {
        if (line.startsWith("  "_L1))
            commands.append(line.simplified().section(u' ', 0, 0));
    }
    EXPECT_EQ(commands, (QStringList{u"list"_s, u"open"_s, u"link"_s, u"launcher"_s, u"doctor"_s, u"settings"_s,
                                     u"menu"_s, u"quit"_s}));
    EXPECT_EQ(run({u"-h"_s}), overview);
    EXPECT_EQ(run({u"help"_s}), overview);
}

TEST_F(CommandLineTest, EveryCommandHasHelp)
{
    for (const QString &command : {u"list"_s, u"open"_s, u"link"_s, u"doctor"_s}) {
        const Answer help = run({command, u"--help"_s});
        EXPECT_EQ(help.status, ExitStatus::done);
        EXPECT_TRUE(help.results.startsWith(u"Usage: vantrel "_s + command)) << help.results.toStdString();
        EXPECT_EQ(help.messages, QString());
    }
}

TEST_F(CommandLineTest, TheHelpSaysWhatACommandTakes)
{
    const std::vector<std::pair<QString, QString>> rows{
        {u"list"_s, u"Usage: vantrel list [--json] [--all]"_s},
        {u"open"_s, u"Usage: vantrel open [--dry-run] [--alert] PROFILE [URL…]"_s},
        {u"link"_s, u"Usage: vantrel link PROFILE [URL…]"_s},
        {u"doctor"_s, u"Usage: vantrel doctor [--json]"_s},
    };
    for (const auto &[command, usage] : rows)
        EXPECT_EQ(run({command, u"-h"_s}).results.section(u'\n', 0, 0), usage);
}

TEST_F(CommandLineTest, TheVersionIsTheProgramsOne)
{
    const QString former = QCoreApplication::applicationVersion();
    QCoreApplication::setApplicationVersion(u"1.2.3"_s);
    EXPECT_EQ(run({u"--version"_s}), done(u"vantrel 1.2.3\n"_s));
    QCoreApplication::setApplicationVersion(former);
}

TEST_F(CommandLineTest, WhatIsNoCommandIsWrongUsage)
{
    EXPECT_EQ(run({u"cook"_s, u"soup"_s}), wrong(u"There is no command “cook”."_s));
    EXPECT_EQ(run({u"List"_s}), wrong(u"There is no command “List”."_s));
    EXPECT_EQ(run({QString()}), wrong(u"There is no command “”."_s));
    EXPECT_EQ(run({u"--json"_s, u"list"_s}), wrong(u"There is no command “--json”."_s));
    EXPECT_EQ(run({u"a\nb\x1b"_s}), wrong(u"There is no command “a\\nb\\x1b”."_s));
    EXPECT_EQ(run({u"vantrel://?profileName=Work"_s, u"https://example.com/"_s}),
              wrong(u"There is no command “vantrel://?profileName=Work”."_s));
    EXPECT_EQ(run({u"menu"_s, u"more"_s}), wrong(u"There is no command “menu”."_s));
    EXPECT_TRUE(app.takeCalls().isEmpty());
}

TEST_F(CommandLineTest, AWrongUsageOfACommandIsToldByTheCommand)
{
    const std::vector<std::pair<QStringList, QString>> rows{
        {{u"list"_s, u"more"_s}, u"vantrel: “more” is one word too many.\nTry “vantrel list --help”.\n"_s},
        {{u"doctor"_s, u"more"_s}, u"vantrel: “more” is one word too many.\nTry “vantrel doctor --help”.\n"_s},
        {{u"open"_s}, u"vantrel: PROFILE is missing.\nTry “vantrel open --help”.\n"_s},
        {{u"link"_s}, u"vantrel: PROFILE is missing.\nTry “vantrel link --help”.\n"_s},
    };
    for (const auto &[arguments, message] : rows)
        EXPECT_EQ(run(arguments), (Answer{ExitStatus::wrongUsage, {}, message}));
    EXPECT_EQ(run({u"doctor"_s, u"--all"_s}).status, ExitStatus::wrongUsage);
    EXPECT_EQ(run({u"list"_s, u"--dry-run"_s}).status, ExitStatus::wrongUsage);
}

} // namespace
} // namespace vantrel
