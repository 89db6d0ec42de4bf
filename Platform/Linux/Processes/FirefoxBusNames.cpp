#include "Platform/Linux/Processes/FirefoxBusNames.h"

#include "Platform/Linux/Processes/FirefoxBusName.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QDBusMessage callToBus(const QString &method)
{
    const QString bus = u"org.freedesktop.DBus"_s;
    return QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, method);
}

/// Calls `take` with the reply as long as `owner` exists; an error is no reply.
template <typename Value>
void ask(const QDBusConnection &bus, const QDBusMessage &question, QObject *owner, std::function<void(Value)> take)
{
    auto *call = new QDBusPendingCallWatcher(bus.asyncCall(question), owner);
    QObject::connect(call, &QDBusPendingCallWatcher::finished, owner, [call, take = std::move(take)] {
        call->deleteLater();
        const QDBusPendingReply<Value> reply = *call;
        if (!reply.isError())
            take(reply.value());
    });
}

} // namespace

FirefoxBusNames::FirefoxBusNames(QDBusConnection bus, Listener listener)
    : bus_(std::move(bus)),
      listener_(std::move(listener))
{
}

bool FirefoxBusNames::start()
{
    if (!bus_.isConnected())
        return false;
    watcher_ = std::make_unique<QDBusServiceWatcher>();
    watcher_->setConnection(bus_);
    watcher_->setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    for (const QString &names : firefoxBusNamespaces())
        watcher_->addWatchedService(names + u'*');
    QObject::connect(watcher_.get(), &QDBusServiceWatcher::serviceOwnerChanged, watcher_.get(),
                     [this](const QString &name, const QString &, const QString &newOwner) {
                         if (!newOwner.isEmpty())
                             listener_.appeared(name);
                     });
    end_ = std::make_unique<BusEnd>(bus_);
    QObject::connect(end_.get(), &BusEnd::Disconnected, watcher_.get(), [this] { listener_.lost(); });
    // Asked after watching began, so that no name is missed.
    ask<QStringList>(bus_, callToBus(u"ListNames"_s), watcher_.get(), [this](const QStringList &names) {
        for (const QString &name : names) {
            if (isFirefoxBusName(name))
                listener_.appeared(name);
        }
    });
    return true;
}

void FirefoxBusNames::askProcess(const QString &name, std::function<void(pid_t process)> answer)
{
    QDBusMessage question = callToBus(u"GetConnectionUnixProcessID"_s);
    question.setArguments({name});
    ask<uint>(bus_, question, watcher_.get(),
              [answer = std::move(answer)](uint process) { answer(static_cast<pid_t>(process)); });
}

} // namespace vantrel
