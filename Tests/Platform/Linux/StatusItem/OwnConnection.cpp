#include "Tests/Platform/Linux/StatusItem/OwnConnection.h"

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
