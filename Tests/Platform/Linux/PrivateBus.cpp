#include "Tests/Platform/Linux/PrivateBus.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace vantrel::test {

PrivateBus::PrivateBus(const QProcessEnvironment &variables)
{
    daemon_.setProcessEnvironment(variables);
    daemon_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // Also when the test is killed.
    daemon_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    daemon_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s, u"--nopidfile"_s});
    EXPECT_TRUE(daemon_.waitForStarted()) << "dbus-daemon can't be started: install the package dbus-daemon.";
    while (!daemon_.canReadLine() && daemon_.waitForReadyRead(10000)) {
    }
    address_ = QString::fromLatin1(daemon_.readLine().trimmed());
    EXPECT_FALSE(address_.isEmpty()) << "dbus-daemon didn't tell its address.";
}

PrivateBus::~PrivateBus()
{
    stop();
}

void PrivateBus::stop()
{
    if (daemon_.state() == QProcess::NotRunning)
        return;
    daemon_.kill();
    daemon_.waitForFinished();
}

void PrivateBus::pause() const
{
    EXPECT_EQ(kill(static_cast<pid_t>(daemon_.processId()), SIGSTOP), 0);
}

void PrivateBus::resume() const
{
    EXPECT_EQ(kill(static_cast<pid_t>(daemon_.processId()), SIGCONT), 0);
}

} // namespace vantrel::test
