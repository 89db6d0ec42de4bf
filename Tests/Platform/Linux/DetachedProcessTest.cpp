#include "Platform/Linux/DetachedProcess.h"

#include "Tests/Platform/Linux/PlantedHome.h"
#include "Tests/Platform/Linux/ReportChannel.h"
#include "Tests/Platform/Linux/ScopedVariable.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/VantrelKit/Samples.h"

#include <QFile>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class DetachedProcess : public testing::Test {
protected:
    [[nodiscard]] std::expected<void, PlatformError> start(const QStringList &commandLine,
                                                           QProcessEnvironment variables = {})
    {
        channel_.addTo(variables);
        return startDetached(commandLine, home_.path(), variables);
    }

    /// What the reporting program tells when it is started.
    [[nodiscard]] test::StartReport report(const QStringList &arguments = {}, const QProcessEnvironment &variables = {})
    {
        const auto started = start(QStringList(test::reportingProgram()) + arguments, variables);
        EXPECT_TRUE(started.has_value()) << started.error().message.toStdString();
        const auto report = channel_.next();
        EXPECT_TRUE(report.has_value()) << "The program did not report.";
        return report.value_or(test::StartReport());
    }

    [[nodiscard]] QString failure(const QStringList &commandLine)
    {
        const auto started = start(commandLine);
        return started ? u"started"_s : started.error().message;
    }

    test::PlantedHome home_;
    test::ReportChannel channel_;
};

/// Like a shell that starts a program in a new terminal, and whose window is then closed. True when it started it.
bool startInATerminalThatCloses(const std::function<bool()> &start)
{
    int terminal = -1;
    const pid_t shell = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (shell < 0)
        return false;
    if (shell == 0)
        _exit(start() ? EXIT_SUCCESS : EXIT_FAILURE);
    int status = 0;
    waitpid(shell, &status, 0);
    close(terminal);
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

TEST_F(DetachedProcess, ArgumentsArriveByteForByte)
{
    QStringList arguments{QString(), u"-"_s, u"--"_s, u"%U"_s};
    for (const QString &text : test::oddTexts()) {
        // Nothing behind a zero byte reaches any program.
        if (!text.contains(QChar(u'\0')))
            arguments.append(text);
    }
    QByteArrayList expected{test::reportingProgram().toUtf8()};
    for (const QString &argument : std::as_const(arguments))
        expected.append(argument.toUtf8());
    EXPECT_EQ(report(arguments).arguments, expected);
}

TEST_F(DetachedProcess, ItHasASessionOfItsOwnAndNoTerminal)
{
    const test::StartReport started = report();
    EXPECT_GT(started.session, 0);
    EXPECT_NE(started.session, getsid(0));
    EXPECT_EQ(started.terminal, 0);
}

/// Gives one of this process's descriptors another destination, and puts the former one back.
class Redirection {
public:
    Redirection(int descriptor, const QString &path) : descriptor_(descriptor), former_(dup(descriptor))
    {
        const int other = open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC);
        EXPECT_GE(other, 0);
        EXPECT_EQ(dup2(other, descriptor_), descriptor_);
        close(other);
    }
    ~Redirection()
    {
        dup2(former_, descriptor_);
        close(former_);
    }
    Q_DISABLE_COPY_MOVE(Redirection)

private:
    int descriptor_;
    int former_;
};

TEST_F(DetachedProcess, ItReadsAndWritesNothing)
{
    const QString ours = home_.write(u"ours"_s);
    QMap<int, QByteArray> descriptors;
    {
        const Redirection input(STDIN_FILENO, ours);
        const Redirection output(STDOUT_FILENO, ours);
        const Redirection errors(STDERR_FILENO, ours);
        descriptors = report().descriptors;
    }
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        EXPECT_EQ(descriptors.value(number), "/dev/null") << number;
}

TEST_F(DetachedProcess, ItInheritsNoOpenFile)
{
    const QByteArray path = QFile::encodeName(home_.write(u"secret"_s, "secret"));
    // Without O_CLOEXEC, as libraries and a careless parent leave theirs.
    const int inheritable = open(path.constData(), O_RDONLY);
    ASSERT_GE(inheritable, 3);
    const QMap<int, QByteArray> descriptors = report().descriptors;
    close(inheritable);
    EXPECT_EQ(descriptors.keys(), (QList<int>{0, 1, 2}))
        << QByteArrayList(descriptors.values()).join(", ").toStdString();
}

TEST_F(DetachedProcess, ItStartsWhereItIsTold)
{
    EXPECT_EQ(report().workingDirectory, QFile::encodeName(home_.path()));
    const QString odd = home_.makeFolder(u"two words & caf\u00e9"_s);
    QProcessEnvironment variables;
    channel_.addTo(variables);
    ASSERT_TRUE(startDetached({test::reportingProgram()}, odd, variables).has_value());
    const auto second = channel_.next();
    ASSERT_TRUE(second.has_value());
    EXPECT_EQ(second->workingDirectory, QFile::encodeName(odd));
}

TEST_F(DetachedProcess, ItHasTheVariablesGivenAndNoOthers)
{
    const test::ScopedVariable own("OWN_OF_THE_TEST", "1");
    QProcessEnvironment variables;
    variables.insert(u"GIVEN"_s, u"two words = caf\u00e9\n"_s);
    variables.insert(u"EMPTY"_s, QString());
    const test::StartReport started = report({}, variables);
    EXPECT_EQ(started.variable("GIVEN"), "two words = caf\u00e9\n");
    EXPECT_EQ(started.variable("EMPTY"), "");
    EXPECT_EQ(started.variable("OWN_OF_THE_TEST"), std::nullopt);
    EXPECT_EQ(started.variables.size(), 3) << "GIVEN, EMPTY and where to report";
}

TEST_F(DetachedProcess, ItIgnoresAndBlocksNoSignal)
{
    signal(SIGPIPE, SIG_IGN);
    const QByteArrayList masks = report().signalMasks;
    signal(SIGPIPE, SIG_DFL);
    EXPECT_EQ(masks, (QByteArrayList{"SigBlk:\t0000000000000000", "SigIgn:\t0000000000000000"}));
}

TEST_F(DetachedProcess, ItLivesOnWhenItsParentEndsAndItsTerminalCloses)
{
    channel_.hold();
    ASSERT_TRUE(startInATerminalThatCloses([this] { return start({test::reportingProgram()}).has_value(); }));
    EXPECT_TRUE(channel_.release()) << "The program is no longer there.";
    EXPECT_TRUE(channel_.next().has_value());
}

/// Whether this process has a child, be it one that has ended and was not asked for since.
bool hasAChild()
{
    siginfo_t child{};
    return waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0;
}

TEST_F(DetachedProcess, NothingStaysOfItInARunningProgramOnceItHasEnded)
{
    // Those of other cases, which had no event loop.
    while (waitpid(-1, nullptr, 0) > 0)
        ;
    const test::EventProgram program;
    channel_.hold();
    ASSERT_TRUE(start({test::reportingProgram()}).has_value());
    EXPECT_TRUE(hasAChild());
    ASSERT_TRUE(channel_.release());
    EXPECT_TRUE(test::waitUntil([] { return !hasAChild(); }));
}

TEST_F(DetachedProcess, AProgramWithoutASlashIsFoundThroughPath)
{
    const QFileInfo program(test::reportingProgram());
    const test::ScopedVariable path("PATH", "/no/such/folder:" + QFile::encodeName(program.path()));
    ASSERT_TRUE(start({program.fileName()}).has_value());
    EXPECT_TRUE(channel_.next().has_value());
}

TEST_F(DetachedProcess, AProgramThatIsNotInPathIsNotTakenFromTheWorkingDirectory)
{
    home_.installProgram(u"planted"_s);
    EXPECT_EQ(failure({u"planted"_s}), u"planted can't be started: No such file or directory."_s);
}

TEST_F(DetachedProcess, WhatCannotBeExecutedFailsWithTheSystemsReason)
{
    const QString plain = home_.write(u"plain"_s, "#!/bin/sh\n");
    const QString orphan = home_.write(u"orphan"_s, "#!/no/such/interpreter\n");
    ASSERT_TRUE(QFile::setPermissions(orphan, QFile::ReadOwner | QFile::ExeOwner));
    const std::vector<std::pair<QString, QString>> rows{
        {u"/no/such/program: really"_s, u"No such file or directory"_s},
        {u"no-such-program-in-path"_s, u"No such file or directory"_s},
        {plain, u"Permission denied"_s},
        {home_.path(), u"Permission denied"_s},
        {orphan, u"No such file or directory"_s},
        {plain + u"/below"_s, u"Not a directory"_s},
    };
    for (const auto &[program, reason] : rows)
        EXPECT_EQ(failure({program, u"argument"_s}), u"%1 can't be started: %2."_s.arg(program, reason));
}

TEST_F(DetachedProcess, ALinkLongerThanTheSystemPassesOnFails)
{
    EXPECT_EQ(failure({u"/bin/true"_s, QString(1 << 20, u'x')}),
              u"/bin/true can't be started: Argument list too long."_s);
}

TEST_F(DetachedProcess, AFolderToStartInThatIsNotThereFails)
{
    const auto started = startDetached({u"/bin/true"_s}, home_.path(u"missing"_s), {});
    ASSERT_FALSE(started.has_value());
    EXPECT_EQ(started.error().message, u"/bin/true can't be started: No such file or directory."_s);
}

TEST_F(DetachedProcess, WithoutAProgramThereIsNothingToStart)
{
    EXPECT_EQ(failure({}), u"There is no program to start."_s);
}

TEST_F(DetachedProcess, VariablesOfOneProcessAreNotPassedOn)
{
    const QStringList own{u"INVOCATION_ID"_s,
                          u"JOURNAL_STREAM"_s,
                          u"NOTIFY_SOCKET"_s,
                          u"WATCHDOG_PID"_s,
                          u"WATCHDOG_USEC"_s,
                          u"LISTEN_FDS"_s,
                          u"LISTEN_PID"_s,
                          u"LISTEN_FDNAMES"_s,
                          u"MANAGERPID"_s,
                          u"SYSTEMD_EXEC_PID"_s,
                          u"GIO_LAUNCHED_DESKTOP_FILE"_s,
                          u"GIO_LAUNCHED_DESKTOP_FILE_PID"_s,
                          u"BAMF_DESKTOP_FILE_HINT"_s,
                          u"XDG_ACTIVATION_TOKEN"_s,
                          u"DESKTOP_STARTUP_ID"_s};
    QProcessEnvironment kept;
    for (const QString &name : {u"HOME"_s, u"PATH"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"DBUS_SESSION_BUS_ADDRESS"_s,
                                u"XDG_RUNTIME_DIR"_s, u"LANG"_s, u"MANAGERPID2"_s, u"EMPTY"_s})
        kept.insert(name, name == "EMPTY"_L1 ? QString() : u"value of "_s + name);
    QProcessEnvironment given = kept;
    for (const QString &name : own)
        given.insert(name, u"1"_s);
    EXPECT_EQ(environmentForChildren(given).toStringList(), kept.toStringList());
    EXPECT_TRUE(environmentForChildren({}).isEmpty());
}

} // namespace
} // namespace vantrel
