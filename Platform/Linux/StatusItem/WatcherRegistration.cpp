#include "Platform/Linux/StatusItem/WatcherRegistration.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Hands the reply of a call to a function unless the owner goes before.
template <typename Reply, typename Function>
void then(const QDBusPendingCall &call, QObject *owner, Function function)
{
    auto *pending = new QDBusPendingCallWatcher(call, owner);
    QObject::connect(pending, &QDBusPendingCallWatcher::finished, owner,
                     [function = std::move(function)](QDBusPendingCallWatcher *finished) {
                         finished->deleteLater();
                         function(Reply(*finished));
                     });
}

} // namespace

WatcherRegistration::WatcherRegistration(const QDBusConnection &connection, std::function<void(bool)> shownChanged)
    : connection_(connection),
      shownChanged_(std::move(shownChanged)),
      names_(StatusNotifierWatcher::interfaceName, connection, QDBusServiceWatcher::WatchForOwnerChange)
{
}

void WatcherRegistration::start()
{
    QObject::connect(&names_, &QDBusServiceWatcher::serviceOwnerChanged, &names_,
                     [this](const QString &, const QString &, const QString &owner) { setOwner(owner); });
    QDBusMessage question = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                           u"org.freedesktop.DBus"_s, u"GetNameOwner"_s);
    question.setArguments({QString(StatusNotifierWatcher::interfaceName)});
    then<QDBusPendingReply<QString>>(connection_.asyncCall(question), &names_, [this](const auto &reply) {
        if (!owner_)
            setOwner(reply.isError() ? QString() : reply.value());
    });
}

void WatcherRegistration::setOwner(const QString &owner)
{
    owner_ = owner;
    isRegistered_.reset();
    hasHost_.reset();
    watcher_.reset();
    properties_.reset();
    if (!owner.isEmpty()) {
        watcher_ = std::make_unique<StatusNotifierWatcher>(owner, connection_);
        properties_ = std::make_unique<StatusNotifierWatcherProperties>(owner, connection_);
        // Each of the three is all that some watcher does when a panel comes or goes.
        const auto ask = [this] { askForHost(); };
        QObject::connect(watcher_.get(), &StatusNotifierWatcher::StatusNotifierHostRegistered, &names_, ask);
        QObject::connect(watcher_.get(), &StatusNotifierWatcher::StatusNotifierHostUnregistered, &names_, ask);
        QObject::connect(properties_.get(), &StatusNotifierWatcherProperties::PropertiesChanged, &names_, ask);
        // Without waiting for a host: one of which the watcher says nothing finds the item in the watcher's list.
        registerItem();
        askForHost();
    }
    report();
}

void WatcherRegistration::registerItem()
{
    // By the unique name, which a sandbox lets through too; the object is at the path that goes without saying.
    const auto call = watcher_->asyncCall(u"RegisterStatusNotifierItem"_s, connection_.baseService());
    then<QDBusPendingReply<>>(call, watcher_.get(), [this](const auto &reply) {
        isRegistered_ = !reply.isError();
        report();
    });
}

void WatcherRegistration::askForHost()
{
    const auto call = properties_->asyncCall(u"Get"_s, QString(StatusNotifierWatcher::interfaceName),
                                             u"IsStatusNotifierHostRegistered"_s);
    then<QDBusPendingReply<QDBusVariant>>(call, properties_.get(), [this](const auto &reply) {
        setHasHost(!reply.isError() && reply.value().variant().toBool());
    });
}

void WatcherRegistration::setHasHost(bool hasHost)
{
    const bool comes = hasHost && (hasHost_ == false || isRegistered_ == false);
    hasHost_ = hasHost;
    // A watcher may have dropped the items with the last host, or refused them as long as there was none. One that has
    // not takes no notice.
    if (comes)
        registerItem();
    report();
}

void WatcherRegistration::report()
{
    const bool isAnswered = !watcher_ || (isRegistered_ && hasHost_);
    const bool isShown = isRegistered_.value_or(false) && hasHost_.value_or(false);
    if (!isAnswered || isShown_ == isShown)
        return;
    isShown_ = isShown;
    shownChanged_(isShown);
}

} // namespace vantrel
