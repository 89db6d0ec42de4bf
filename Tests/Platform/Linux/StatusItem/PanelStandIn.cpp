#include "Tests/Platform/Linux/StatusItem/PanelStandIn.h"

#include <QDBusPendingReply>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

const QString &menuPath()
{
    static const QString path = u"/MenuBar"_s;
    return path;
}

} // namespace

RemoteMenu::RemoteMenu(const QString &service, const QString &path, const QDBusConnection &connection)
    : QDBusAbstractInterface(service, path, "com.canonical.dbusmenu", connection, nullptr)
{
    registerDBusMenuTypes();
    // Signals that are declared but connected to nothing would not be subscribed to.
    connect(this, &RemoteMenu::LayoutUpdated, this, [] {});
    connect(this, &RemoteMenu::ItemsPropertiesUpdated, this, [] {});
}

PanelStandIn::PanelStandIn(const PrivateBus &bus, const QString &service)
    : service_(service),
      connection_(bus.address()),
      menu_(service, menuPath(), *connection_)
{
}

QVariantMap PanelStandIn::properties()
{
    return propertiesOf(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s);
}

QDBusMessage PanelStandIn::callItem(const QString &method, const QVariantList &arguments)
{
    return call(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, method, arguments);
}

QVariantMap PanelStandIn::menuProperties()
{
    return propertiesOf(menuPath(), u"com.canonical.dbusmenu"_s);
}

QDBusMessage PanelStandIn::callMenu(const QString &method, const QVariantList &arguments)
{
    return call(menuPath(), u"com.canonical.dbusmenu"_s, method, arguments);
}

DBusMenuLayout PanelStandIn::layout()
{
    const QDBusMessage reply = callMenu(u"GetLayout"_s, {0, -1, QStringList()});
    EXPECT_EQ(reply.signature(), u"u(ia{sv}av)"_s) << qPrintable(reply.errorMessage());
    return qdbus_cast<DBusMenuLayout>(reply.arguments().value(1));
}

uint PanelStandIn::revision()
{
    return callMenu(u"GetLayout"_s, {0, 0, QStringList()}).arguments().value(0).toUInt();
}

int PanelStandIn::idOf(const QString &label)
{
    for (const DBusMenuLayout &row : layout().children) {
        if (row.properties.value(u"label"_s) == label)
            return row.id;
    }
    return -1;
}

bool PanelStandIn::aboutToShow()
{
    const QDBusMessage reply = callMenu(u"AboutToShow"_s, {0});
    EXPECT_EQ(reply.signature(), u"b"_s) << qPrintable(reply.errorMessage());
    return reply.arguments().value(0).toBool();
}

QString PanelStandIn::click(int id, uint timestamp)
{
    const QVariant data = QVariant::fromValue(QDBusVariant(QString()));
    return callMenu(u"Event"_s, {id, u"clicked"_s, data, timestamp}).errorName();
}

QDBusMessage PanelStandIn::call(const QString &path, const QString &interface, const QString &method,
                                const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service_, path, interface, method);
    message.setArguments(arguments);
    const QDBusPendingCall pending = connection_->asyncCall(message);
    EXPECT_TRUE(eventually([&] { return pending.isFinished(); })) << qPrintable(method);
    return pending.reply();
}

QVariantMap PanelStandIn::propertiesOf(const QString &path, const QString &interface)
{
    const QDBusMessage reply = call(path, u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s, {interface});
    EXPECT_EQ(reply.signature(), u"a{sv}"_s) << qPrintable(reply.errorMessage());
    return qdbus_cast<QVariantMap>(reply.arguments().value(0));
}

} // namespace vantrel::test
