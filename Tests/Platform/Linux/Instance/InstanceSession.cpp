#include "Tests/Platform/Linux/Instance/InstanceSession.h"

#include "Platform/Linux/Instance/InstanceSocketPath.h"
#include "Platform/Linux/Instance/LocalSocket.h"

#include <QFile>
#include <QJsonDocument>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr int millisecondsAllowed = 15000;

/// Held open for writing as well, so that it never looks closed.
OwnedDescriptor opened(const QString &pipe)
{
    OwnedDescriptor descriptor(open(QFile::encodeName(pipe).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
    EXPECT_TRUE(descriptor.isOpen()) << pipe.toStdString();
    return descriptor;
}

} // namespace

InstanceSession::InstanceSession() : variables_(QProcessEnvironment::systemEnvironment())
{
    variables_.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    variables_.insert(u"XDG_RUNTIME_DIR"_s, folder_.makeFolder(u"runtime"_s));
    variables_.insert(u"TMPDIR"_s, folder_.makeFolder(u"temporary"_s));
    variables_.insert(u"REPORT_TO"_s, folder_.makePipe(u"reports"_s));
    variables_.insert(u"START_AFTER"_s, folder_.makePipe(u"start"_s));
    reports_ = opened(folder_.path(u"reports"_s));
}

InstanceSession::~InstanceSession()
{
    letGo();
    for (QProcess &program : programs_) {
        program.kill();
        program.waitForFinished();
    }
}

QString InstanceSession::socketPath() const
{
    return instanceSocketPath(variables_);
}

QProcess &InstanceSession::start(const QStringList &arguments)
{
    QProcess &program = programs_.emplace_back();
    program.setProcessEnvironment(variables_);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QStringLiteral(INSTANCE_PROGRAM), arguments);
    EXPECT_TRUE(program.waitForStarted()) << program.errorString().toStdString();
    return program;
}

void InstanceSession::hold()
{
    starter_ = opened(folder_.path(u"start"_s));
}

QJsonArray InstanceSession::nextReport()
{
    const QDeadlineTimer deadline(millisecondsAllowed);
    while (!received_.contains('\n')) {
        if (!LocalSocket::wait(reports_.number(), POLLIN, deadline))
            return {};
        char block[4096];
        const ssize_t count = read(reports_.number(), block, sizeof block);
        received_.append(block, std::max<ssize_t>(0, count));
    }
    const qsizetype end = received_.indexOf('\n');
    const QByteArray line = received_.first(end);
    received_.remove(0, end + 1);
    return QJsonDocument::fromJson(line).array();
}

QJsonArray InstanceSession::report(const InstanceRequest &request)
{
    return {u"request"_s,   static_cast<int>(request.kind), QJsonArray::fromStringList(request.links),
            request.action, request.activationToken,        request.startupID};
}

QJsonArray InstanceSession::report(const QString &role, const QStringList &links)
{
    return {role, QJsonArray::fromStringList(links)};
}

} // namespace vantrel::test
