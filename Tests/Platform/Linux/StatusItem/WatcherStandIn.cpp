#include "Tests/Platform/Linux/StatusItem/WatcherStandIn.h"

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel::test {

WatcherStandIn::WatcherStandIn(const PrivateBus &bus, bool hasHost, Notice notice)
    : connection_(bus.address()),
      hasHost_(hasHost),
      notice_(notice)
{
    EXPECT_TRUE(connection_->registerObject(u"/StatusNotifierWatcher"_s, this,
                                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                                                QDBusConnection::ExportAllProperties));
    EXPECT_TRUE(connection_->registerService(u"org.kde.StatusNotifierWatcher"_s));
}

void WatcherStandIn::setHasHost(bool hasHost)
{
    hasHost_ = hasHost;
    if (notice_ == Notice::ownSignals && hasHost)
        Q_EMIT StatusNotifierHostRegistered();
    else if (notice_ == Notice::ownSignals)
        Q_EMIT StatusNotifierHostUnregistered();
    if (notice_ != Notice::propertyChange)
        return;
    QDBusMessage signal = QDBusMessage::createSignal(u"/StatusNotifierWatcher"_s, u"org.freedesktop.DBus.Properties"_s,
                                                     u"PropertiesChanged"_s);
    const QVariantMap changed{{u"IsStatusNotifierHostRegistered"_s, hasHost}};
    signal.setArguments({u"org.kde.StatusNotifierWatcher"_s, changed, QStringList()});
    EXPECT_TRUE(connection_->send(signal));
}

void WatcherStandIn::answer()
{
    for (const QDBusMessage &call : std::exchange(held_, {}))
        EXPECT_TRUE(connection_->send(call.createReply()));
}

void WatcherStandIn::RegisterStatusNotifierItem(const QString &service)
{
    if (refuses_) {
        sendErrorReply(QDBusError::Failed, u"Not now."_s);
        return;
    }
    registrations_.append(service + " from "_L1 + message().service());
    if (holds_) {
        setDelayedReply(true);
        held_.append(message());
    }
}

} // namespace vantrel::test
