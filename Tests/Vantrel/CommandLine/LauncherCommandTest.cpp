#include "Tests/Vantrel/CommandLine/CommandLineCase.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class LauncherCommandTest : public test::CommandLineCase {};

TEST_F(LauncherCommandTest, TheOtherProgramGetsTheArgumentsAsTheyWereMeant)
{
    const QStringList odd{u"--output"_s, u"--remove"_s, u"--"_s, u"--remove"_s};
    for (const QStringList &arguments : {QStringList{u"Work"_s}, QStringList{u"Work"_s, u"--remove"_s},
                                         QStringList{u"--output"_s, u"a b"_s, u"x"_s}, odd})
        EXPECT_EQ(run(QStringList(u"launcher"_s) + arguments), failed(u"This process goes on."_s));
    EXPECT_EQ(launchers.calls(), (QList<QStringList>{{u"--"_s, u"Work"_s},
                                                     {u"--remove"_s, u"--"_s, u"Work"_s},
                                                     {u"--output=a b"_s, u"--"_s, u"x"_s},
                                                     {u"--output=--remove"_s, u"--"_s, u"--remove"_s}}));
}

TEST_F(LauncherCommandTest, WrongUsageAndHelpStartNothing)
{
    EXPECT_EQ(run({u"launcher"_s}).status, ExitStatus::wrongUsage);
    EXPECT_EQ(run({u"launcher"_s, u"a"_s, u"b"_s}).status, ExitStatus::wrongUsage);
    EXPECT_EQ(run({u"launcher"_s, u"--help"_s}).status, ExitStatus::done);
    EXPECT_EQ(launchers.calls(), QList<QStringList>());
}

} // namespace
} // namespace vantrel
