// What tests start in place of the app: tries to become the instance, and writes to the pipe that $REPORT_TO names what
// comes of it and what it is asked for, one JSON array a line. Its arguments are links to open; "--wait" before them
// makes it report "ready" and wait until the pipe that $START_AFTER names has no writer any more. The action "quit"
// ends it.

#include "Platform/Linux/Instance/InstanceSocketPath.h"
#include "Platform/Linux/Instance/LinuxApplicationInstance.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace vantrel;

namespace {

constexpr unsigned secondsAllowed = 60;

/// In one write, so that reports of several processes don't mix.
void report(const QJsonArray &report)
{
    // For reading as well, so that opening it doesn't wait for a test that has ended.
    const OwnedDescriptor pipe(open(qgetenv("REPORT_TO").constData(), O_RDWR | O_CLOEXEC));
    const QByteArray line = QJsonDocument(report).toJson(QJsonDocument::Compact) + '\n';
    if (write(pipe.number(), line.constData(), static_cast<size_t>(line.size())) != line.size())
        _exit(EXIT_FAILURE);
}

void waitForStart()
{
    const OwnedDescriptor pipe(open(qgetenv("START_AFTER").constData(), O_RDONLY | O_CLOEXEC));
    report({u"ready"_s});
    char byte = 0;
    while (read(pipe.number(), &byte, 1) > 0) {
    }
}

void take(const InstanceRequest &request)
{
    report({u"request"_s, static_cast<int>(request.kind), QJsonArray::fromStringList(request.links), request.action,
            request.activationToken, request.startupID});
    if (request.action == "quit"_L1)
        QCoreApplication::quit();
}

QDBusConnection bus()
{
    // Without an address a bus would be started.
    return qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ? QDBusConnection(QString())
                                                                   : QDBusConnection::sessionBus();
}

} // namespace

int main(int argc, char *argv[])
{
    alarm(secondsAllowed);
    const QCoreApplication application(argc, argv);
    QStringList links = QCoreApplication::arguments().sliced(1);
    LinuxApplicationInstance instance(bus(), instanceSocketPath(QProcessEnvironment::systemEnvironment()));
    if (links.value(0) == "--wait"_L1) {
        links.removeFirst();
        waitForStart();
    }
    const InstanceRequest first{.kind = links.isEmpty() ? InstanceRequest::Kind::activate : InstanceRequest::Kind::open,
                                .links = links};
    const auto role = instance.start(first, &take);
    const QJsonArray reportedLinks = QJsonArray::fromStringList(links);
    if (!role) {
        report({u"failed"_s, reportedLinks, role.error().message});
        return EXIT_FAILURE;
    }
    report({*role == ApplicationInstance::Role::only ? u"only"_s : u"second"_s, reportedLinks});
    return *role == ApplicationInstance::Role::only ? QCoreApplication::exec() : EXIT_SUCCESS;
}
