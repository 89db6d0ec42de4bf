#include "Vantrel/CommandLine/AppCommands.h"

#include "Tests/Vantrel/CommandLine/CommandLineCase.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString firstLink = u"vantrel://?browserBundleIdentifier=a&profileName=b"_s;
const QString secondLink = u"VANTREL://?browserBundleIdentifier=c&profileName=d"_s;

class AppCommandsTest : public test::CommandLineCase {};

TEST_F(AppCommandsTest, WithoutACommandTheProgramBecomesTheApp)
{
    app.refuse(u"There is no display."_s);
    EXPECT_EQ(run({}), failed(u"There is no display."_s));
    EXPECT_EQ(app.takeCalls(), QStringList({u"send activate"_s, u"become"_s}));
}

TEST_F(AppCommandsTest, ARunningAppIsShownInstead)
{
    app.setRunning(true);
    EXPECT_EQ(run({}), done(QString()));
    EXPECT_EQ(app.takeCalls(), QStringList(u"send activate"_s));
}

TEST_F(AppCommandsTest, LinksGoToTheRunningAppInTheirOrder)
{
    app.setRunning(true);
    EXPECT_EQ(run({secondLink, firstLink}), done(QString()));
    EXPECT_EQ(app.takeCalls(), QStringList(u"send open "_s + secondLink + u' ' + firstLink));
}

TEST_F(AppCommandsTest, LinksStartTheApp)
{
    EXPECT_EQ(run({firstLink}), done(QString()));
    EXPECT_EQ(app.takeCalls(), QStringList({u"send open "_s + firstLink, u"start open "_s + firstLink}));
}

TEST_F(AppCommandsTest, AnActionGoesToTheRunningAppOrStartsIt)
{
    for (const QString &action : {u"menu"_s, u"settings"_s}) {
        app.setRunning(true);
        EXPECT_EQ(run({action}), done(QString()));
        EXPECT_EQ(app.takeCalls(), QStringList(u"send action "_s + action));
        app.setRunning(false);
        EXPECT_EQ(run({action}), done(QString()));
        EXPECT_EQ(app.takeCalls(), QStringList({u"send action "_s + action, u"start action "_s + action}));
    }
}

TEST_F(AppCommandsTest, QuittingStartsNothing)
{
    app.setRunning(true);
    EXPECT_EQ(run({u"quit"_s}), done(QString()));
    app.setRunning(false);
    EXPECT_EQ(run({u"quit"_s}), failed(u"Vantrel isn't running."_s));
    EXPECT_EQ(app.takeCalls(), QStringList(2, u"send action quit"_s));
}

TEST_F(AppCommandsTest, AnAppThatDoesNotAnswerIsTold)
{
    app.setHanging(u"Vantrel runs, but doesn't answer."_s);
    for (const QStringList &arguments :
         {QStringList(), QStringList(firstLink), QStringList(u"menu"_s), QStringList(u"quit"_s)})
        EXPECT_EQ(run(arguments), failed(u"Vantrel runs, but doesn't answer."_s));
    EXPECT_EQ(app.takeCalls().filter(u"start"_s), QStringList());
}

TEST_F(AppCommandsTest, AnAppThatCanNotBeStartedIsTold)
{
    app.refuse(u"There is no display."_s);
    EXPECT_EQ(run({firstLink}), failed(u"There is no display."_s));
    EXPECT_EQ(run({u"menu"_s}), failed(u"There is no display."_s));
}

} // namespace
} // namespace vantrel
