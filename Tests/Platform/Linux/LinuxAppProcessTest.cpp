#include "Platform/Linux/LinuxAppProcess.h"

#include "Platform/Linux/Instance/InstanceSocketPath.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QThread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Kind = InstanceRequest::Kind;

class LinuxAppProcessTest : public testing::Test {
protected:
    LinuxAppProcessTest()
    {
        variables_.insert(u"HOME"_s, folder_.path());
        variables_.insert(u"XDG_RUNTIME_DIR"_s, folder_.makeFolder(u"run"_s));
        variables_.insert(u"DISPLAY"_s, u":7"_s);
    }

    [[nodiscard]] LinuxAppProcess app() const { return {program_, variables_}; }

    /// The arguments of the program's start, one a line, once it has written them.
    [[nodiscard]] QByteArray started() const
    {
        const QDeadlineTimer deadline(30'000);
        while (!QFileInfo::exists(folder_.path(u"done"_s)) && !deadline.hasExpired())
            QThread::msleep(2);
        return folder_.read(u"started"_s);
    }

    test::TemporaryFolder folder_;
    QString program_ = folder_.writeScript(u"app"_s, "cd " + folder_.path().toUtf8() +
                                                         "\nprintf '%s\\n' \"$@\" \"$DISPLAY\" > started\n: > done\n");
    QProcessEnvironment variables_;

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication application_{argumentCount_, arguments_};
};

TEST_F(LinuxAppProcessTest, WithoutAnAppNobodyTakesARequest)
{
    EXPECT_EQ(app().send({.kind = Kind::action, .action = u"menu"_s}), false);
}

TEST_F(LinuxAppProcessTest, LinksAndActionsAreTheAppsArguments)
{
    ASSERT_TRUE(app().start({.kind = Kind::open, .links = {u"vantrel://a b"_s, u"vantrel:c"_s}}));
    EXPECT_EQ(started(), "vantrel://a b\nvantrel:c\n:7\n");
}

TEST_F(LinuxAppProcessTest, AnActionIsNamedByAnOption)
{
    ASSERT_TRUE(app().start({.kind = Kind::action, .action = u"menu"_s}));
    EXPECT_EQ(started(), "--action\nmenu\n:7\n");
}

TEST_F(LinuxAppProcessTest, WithoutADisplayNothingIsStarted)
{
    variables_.remove(u"DISPLAY"_s);
    const auto result = app().start({.kind = Kind::action, .action = u"menu"_s});
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().message, u"There is no display here to show the menu on."_s);
    EXPECT_EQ(app().become().message, u"There is no display here to show the menu on."_s);
    EXPECT_FALSE(QFileInfo::exists(folder_.path(u"done"_s)));
}

TEST_F(LinuxAppProcessTest, WaylandIsADisplay)
{
    variables_.remove(u"DISPLAY"_s);
    variables_.insert(u"WAYLAND_DISPLAY"_s, u"wayland-0"_s);
    EXPECT_TRUE(app().start({.kind = Kind::action, .action = u"menu"_s}));
    EXPECT_EQ(started(), "--action\nmenu\n\n");
}

TEST_F(LinuxAppProcessTest, AProcessBecomesTheApp)
{
    const pid_t child = fork();
    if (child == 0) {
        setenv("DISPLAY", ":8", 1);
        std::ignore = app().become();
        _exit(99);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(started(), ":8\n");
}

TEST_F(LinuxAppProcessTest, AnAppThatIsNotThereIsTold)
{
    program_ = u"/no/such/app"_s;
    EXPECT_EQ(app().become().message, u"/no/such/app can't be started: No such file or directory."_s);
    EXPECT_FALSE(app().start({.kind = Kind::action, .action = u"menu"_s}));
}

} // namespace
} // namespace vantrel
