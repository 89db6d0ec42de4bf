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

} // namespace vantrel::test
