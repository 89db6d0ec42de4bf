#include "Tests/KeyboardShortcuts/Portal/FakePortalBackend.h"

#include "KeyboardShortcuts/Portal/PortalShortcut.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr QLatin1StringView object("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView shortcutsInterface("org.freedesktop.impl.portal.GlobalShortcuts");
constexpr QLatin1StringView sessionInterface("org.freedesktop.impl.portal.Session");

} // namespace

FakePortalBackend::FakePortalBackend(const PrivateBus &bus) : connection_(bus.address())
{
    registerPortalTypes();
    EXPECT_TRUE(connection_->registerVirtualObject(object, this, QDBusConnection::SubPath));
    EXPECT_TRUE(connection_->registerService(serviceName));
}

FakePortalBackend::~FakePortalBackend()
{
    connection_->unregisterObject(object);
}

QString FakePortalBackend::introspect(const QString & /*path*/) const
{
    return {};
}

bool FakePortalBackend::handleMessage(const QDBusMessage &message, const QDBusConnection & /*connection*/)
{
    const QString method = message.member();
    const QVariantMap properties{{u"version"_s, 1U}};
    if (message.interface() == "org.freedesktop.DBus.Properties"_L1 && method == "GetAll"_L1)
        return connection_->send(message.createReply(properties));
    if (message.interface() == sessionInterface && method == "Close"_L1) {
        calls_.append(method);
        return connection_->send(message.createReply());
    }
    if (message.interface() != shortcutsInterface)
        return false;
    QVariantMap results;
    if (method == "CreateSession"_L1) {
        calls_.append(method);
        session_ = message.arguments().value(1).value<QDBusObjectPath>().path();
    } else if (method == "BindShortcuts"_L1) {
        results = bound(message);
    }
    return connection_->send(message.createReply(QVariantList{response_, results}));
}

QVariantMap FakePortalBackend::bound(const QDBusMessage &message)
{
    QStringList call{message.member()};
    PortalShortcuts granted;
    for (const PortalShortcut &shortcut : qdbus_cast<PortalShortcuts>(message.arguments().value(2))) {
        const QString wish = shortcut.properties.value(u"preferred_trigger"_s).toString();
        call.append(shortcut.id + u'=' + wish);
        granted.append({shortcut.id,
                        {{u"description"_s, shortcut.properties.value(u"description"_s)},
                         {u"trigger_description"_s, QString("Press "_L1 + wish)}}});
    }
    calls_.append(call.join(u' '));
    return {{u"shortcuts"_s, QVariant::fromValue(granted)}};
}

void FakePortalBackend::report(const QString &signal, const QString &id)
{
    EXPECT_TRUE(send(object, shortcutsInterface, signal,
                     {QVariant::fromValue(QDBusObjectPath(session_)), id, qulonglong(1000), QVariantMap()}));
}

void FakePortalBackend::closeSession()
{
    EXPECT_TRUE(send(session_, sessionInterface, u"Closed"_s, {}));
}

bool FakePortalBackend::send(const QString &path, const QString &interface, const QString &signal,
                             const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createSignal(path, interface, signal);
    message.setArguments(arguments);
    return connection_->send(message);
}

} // namespace vantrel::test
