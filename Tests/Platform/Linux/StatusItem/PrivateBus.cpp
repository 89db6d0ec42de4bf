#include "Tests/Platform/Linux/StatusItem/PrivateBus.h"

#include <QDBusMessage>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr int millisecondsAllowed = 10000;

QString nextName()
{
    static int count = 0;
    return u"test %1"_s.arg(++count);
}

} // namespace

PrivateBus::PrivateBus()
{
    daemon_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s, u"--nopidfile"_s});
    const bool isUp = daemon_.waitForStarted(millisecondsAllowed) && daemon_.waitForReadyRead(millisecondsAllowed);
    EXPECT_TRUE(isUp) << "No session bus: install dbus-daemon. " << qPrintable(daemon_.errorString());
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
}

PrivateBus::~PrivateBus()
{
    daemon_.kill();
    daemon_.waitForFinished(millisecondsAllowed);
}

OwnConnection::OwnConnection(const QString &address)
    : name_(nextName()),
      connection_(QDBusConnection::connectToBus(address, name_))
{
}

OwnConnection::~OwnConnection()
{
    QDBusConnection::disconnectFromBus(name_);
}

void OwnConnection::synchronize()
{
    const QDBusMessage question = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                                 u"org.freedesktop.DBus"_s, u"GetId"_s);
    EXPECT_EQ(connection_.call(question, QDBus::Block, millisecondsAllowed).type(), QDBusMessage::ReplyMessage);
}

bool eventually(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, millisecondsAllowed);
}

} // namespace vantrel::test
