#include "Tests/KeyboardShortcuts/Portal/FakePortal.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr QLatin1StringView object("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView shortcutsInterface("org.freedesktop.portal.GlobalShortcuts");

} // namespace

FakePortal::FakePortal(const PrivateBus &bus, Options options)
    : connection_(bus.address()),
      options_(std::move(options))
{
    registerPortalTypes();
    EXPECT_TRUE(connection_->registerVirtualObject(object, this, QDBusConnection::SubPath));
    EXPECT_TRUE(connection_->registerService(u"org.freedesktop.portal.Desktop"_s));
}

FakePortal::~FakePortal()
{
    connection_->unregisterObject(object);
}

int FakePortal::count(const QString &method) const
{
    return static_cast<int>(calls_.filter(method).size());
}

QString FakePortal::introspect(const QString & /*path*/) const
{
    return {};
}

bool FakePortal::handleMessage(const QDBusMessage &message, const QDBusConnection & /*connection*/)
{
    const QString method = message.member();
    const QString interface = message.interface();
    if (interface == "org.freedesktop.host.portal.Registry"_L1 && options_.hasRegistry) {
        calls_.append("Register "_L1 + message.arguments().value(0).toString());
        return connection_->send(message.createReply());
    }
    if (interface == "org.freedesktop.DBus.Properties"_L1 && options_.version) {
        calls_.append("Get "_L1 + message.arguments().value(1).toString());
        return connection_->send(message.createReply(QVariant::fromValue(QDBusVariant(*options_.version))));
    }
    if (interface == "org.freedesktop.portal.Session"_L1) {
        calls_.append(method);
        return connection_->send(message.createReply());
    }
    if (interface != shortcutsInterface || !options_.version)
        return false;
    if (method == "CreateSession"_L1)
        createSession(message);
    else if (method == "BindShortcuts"_L1)
        bindShortcuts(message);
    else
        return false;
    return true;
}

void FakePortal::createSession(const QDBusMessage &message)
{
    calls_.append(message.member());
    if (!options_.refusal.isEmpty()) {
        EXPECT_TRUE(connection_->send(message.createErrorReply(options_.refusal, u"No."_s)));
        return;
    }
    const auto options = qdbus_cast<QVariantMap>(message.arguments().value(0));
    EXPECT_FALSE(options.value(u"session_handle_token"_s).toString().isEmpty());
    ++sessions_;
    const QString path =
        options_.sessionPath + (options_.sessionPath.isEmpty() ? QString() : QString::number(sessions_));
    respond(message, options, {{u"session_handle"_s, path}}, options_.created);
}

void FakePortal::bindShortcuts(const QDBusMessage &message)
{
    EXPECT_EQ(message.signature(), u"oa(sa{sv})sa{sv}"_s);
    EXPECT_EQ(message.arguments().value(0).value<QDBusObjectPath>().path(),
              options_.sessionPath + QString::number(sessions_));
    QStringList call{message.member()};
    descriptions_.clear();
    PortalShortcuts granted;
    for (const PortalShortcut &shortcut : qdbus_cast<PortalShortcuts>(message.arguments().value(1))) {
        const QString wish = shortcut.properties.value(u"preferred_trigger"_s).toString();
        call.append(shortcut.id + u'=' + wish);
        descriptions_.append(shortcut.properties.value(u"description"_s).toString());
        const auto trigger = granted_.value(shortcut.id, "Press "_L1 + wish);
        if (trigger)
            granted.append({shortcut.id, {{u"trigger_description"_s, *trigger}}});
    }
    calls_.append(call.join(u' '));
    const auto options = qdbus_cast<QVariantMap>(message.arguments().value(3));
    respond(message, options, {{u"shortcuts"_s, QVariant::fromValue(granted)}}, options_.bound);
}

void FakePortal::respond(const QDBusMessage &message, const QVariantMap &options, const QVariantMap &results,
                         std::optional<uint> response)
{
    const QString sender = message.service().sliced(1).replace(u'.', u'_');
    const QString path = object + "/request/"_L1 + sender + u'/' + options.value(u"handle_token"_s).toString();
    waiting_.append({path, results});
    // The answer may come before the call's own reply.
    if (response)
        answer(*response);
    EXPECT_TRUE(connection_->send(message.createReply(QVariant::fromValue(QDBusObjectPath(path)))));
}

void FakePortal::answer(uint response)
{
    ASSERT_FALSE(waiting_.isEmpty());
    const Request request = waiting_.takeFirst();
    send(request.path, u"org.freedesktop.portal.Request"_s, u"Response"_s,
         {response, response == 0 ? request.results : QVariantMap()});
}

void FakePortal::report(const QString &signal, const QString &id, const QVariantMap &options)
{
    const QDBusObjectPath session(options_.sessionPath + QString::number(sessions_));
    send(object, shortcutsInterface, signal, {QVariant::fromValue(session), id, qulonglong(1000), options});
}

void FakePortal::pressElsewhere(const QString &id)
{
    const QDBusObjectPath session(u"/org/freedesktop/portal/desktop/session/1_2/other"_s);
    send(object, shortcutsInterface, u"Activated"_s,
         {QVariant::fromValue(session), id, qulonglong(1000), QVariantMap()});
}

void FakePortal::changeTrigger(const QString &id, const QString &trigger)
{
    const QDBusObjectPath session(options_.sessionPath + QString::number(sessions_));
    const PortalShortcuts changed{{id, {{u"trigger_description"_s, trigger}}}};
    send(object, shortcutsInterface, u"ShortcutsChanged"_s,
         {QVariant::fromValue(session), QVariant::fromValue(changed)});
}

void FakePortal::closeSession()
{
    send(options_.sessionPath + QString::number(sessions_), u"org.freedesktop.portal.Session"_s, u"Closed"_s,
         {QVariantMap()});
}

void FakePortal::send(const QString &path, const QString &interface, const QString &signal,
                      const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createSignal(path, interface, signal);
    message.setArguments(arguments);
    EXPECT_TRUE(connection_->send(message));
}

} // namespace vantrel::test
