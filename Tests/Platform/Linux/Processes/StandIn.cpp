#include "Tests/Platform/Linux/Processes/StandIn.h"

#include "Tests/VantrelKit/Printing.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr int millisecondsAllowed = 20000;

/// The first line that the process writes.
QByteArray firstLine(QProcess &process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(millisecondsAllowed))
            return {};
    }
    return process.readLine();
}

} // namespace

StandIn::StandIn(const QStringList &arguments, const QString &bus)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.isEmpty() ? u"unix:path=/no/such/bus"_s : bus);
    process_.setProcessEnvironment(variables);
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QStringLiteral(STAND_IN_BROWSER), arguments);
    EXPECT_EQ(firstLine(process_), "ready\n") << process_.errorString().toStdString();
    ownHandles_ = handleCount();
}

StandIn::~StandIn()
{
    if (process_.state() != QProcess::NotRunning)
        kill();
}

int StandIn::handleCount() const
{
    // As proc(5) tells of process file descriptors.
    const QByteArray line = "\nPid:\t" + QByteArray::number(process()) + '\n';
    int count = 0;
    for (const QFileInfo &info : QDir(u"/proc/self/fdinfo"_s).entryInfoList(QDir::Files)) {
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly) && file.readAll().contains(line))
            ++count;
    }
    return count;
}

void StandIn::close()
{
    process_.closeWriteChannel();
    EXPECT_TRUE(process_.waitForFinished(millisecondsAllowed));
    EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
}

void StandIn::kill()
{
    process_.kill();
    EXPECT_TRUE(process_.waitForFinished(millisecondsAllowed));
}

PrivateBus::PrivateBus()
{
    daemon_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    daemon_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s, u"--nopidfile"_s});
    address_ = QString::fromUtf8(firstLine(daemon_).trimmed());
    EXPECT_FALSE(address_.isEmpty()) << "dbus-daemon can't be started (package dbus-daemon): "
                                     << daemon_.errorString().toStdString();
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
    EXPECT_TRUE(daemon_.waitForFinished(millisecondsAllowed));
}

void PrivateBus::pause() const
{
    EXPECT_EQ(::kill(static_cast<pid_t>(daemon_.processId()), SIGSTOP), 0);
}

void PrivateBus::resume() const
{
    EXPECT_EQ(::kill(static_cast<pid_t>(daemon_.processId()), SIGCONT), 0);
}

} // namespace vantrel::test
