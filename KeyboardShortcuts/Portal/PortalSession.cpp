#include "KeyboardShortcuts/Portal/PortalSession.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A session that lasted so long was none that the desktop ends again and again.
constexpr qint64 lastingMilliseconds = 10'000;
constexpr int maximumLosses = 3;

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

QDBusMessage callOfTheBus(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                          u"org.freedesktop.DBus"_s, method);
    message.setArguments(arguments);
    return message;
}

QDBusMessage callOfThePortal(const QString &owner, const QString &interface, const QString &method,
                             const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(owner, GlobalShortcutsPortal::objectPath, interface, method);
    message.setArguments(arguments);
    return message;
}

/// For an object that may be just calling. It may call until it goes: to disconnect it is no way out, for in the
/// library's own thread that is only done later, perhaps when the object has gone.
template <typename Object>
void dropLater(std::unique_ptr<Object> &object)
{
    if (object)
        object.release()->deleteLater();
}

QStringList idsOf(const PortalShortcuts &shortcuts)
{
    QStringList ids;
    for (const PortalShortcut &shortcut : shortcuts)
        ids.append(shortcut.id);
    return ids;
}

} // namespace

PortalSession::PortalSession(const QDBusConnection &connection, QString appID, Events events)
    : connection_(connection),
      appID_(std::move(appID)),
      events_(std::move(events)),
      names_(GlobalShortcutsPortal::serviceName, connection, QDBusServiceWatcher::WatchForOwnerChange),
      backends_(u"org.freedesktop.impl.portal.desktop*"_s, connection, QDBusServiceWatcher::WatchForOwnerChange)
{
    registerPortalTypes();
}

PortalSession::~PortalSession()
{
    closeSession();
}

void PortalSession::start()
{
    QObject::connect(&names_, &QDBusServiceWatcher::serviceOwnerChanged, &names_,
                     [this](const QString &, const QString &, const QString &owner) { setOwner(owner); });
    QObject::connect(&backends_, &QDBusServiceWatcher::serviceOwnerChanged, &names_,
                     [this](const QString &name, const QString &former, const QString &owner) {
                         if (!former.isEmpty())
                             backendChanged(name, false);
                         if (!owner.isEmpty())
                             backendChanged(name, true);
                     });
    wakePortal();
}

void PortalSession::backendChanged(const QString &name, bool isThere)
{
    // One that ends is started by the portal when it is needed; one that can't be returns by itself or not at all.
    if (!isThere && (phase_ != Phase::bound || !mayTryAgain()))
        return;
    if (isThere && (!lostBackends_.remove(name) || phase_ != Phase::idle))
        return;
    if (!isThere)
        lostBackends_.insert(name);
    refusedIDs_.clear();
    closeSession();
    proceed();
}

void PortalSession::wakePortal()
{
    isWaking_ = true;
    // A portal is started by the bus when it is first asked for.
    const auto start = callOfTheBus(u"StartServiceByName"_s, {QString(GlobalShortcutsPortal::serviceName), 0U});
    then<QDBusPendingReply<uint>>(connection_.asyncCall(start), &names_, [this](const auto &) {
        const auto question = callOfTheBus(u"GetNameOwner"_s, {QString(GlobalShortcutsPortal::serviceName)});
        then<QDBusPendingReply<QString>>(connection_.asyncCall(question), &names_, [this](const auto &owner) {
            isWaking_ = false;
            if (owner.isError())
                setAvailability(Availability::notAvailable);
            else
                setOwner(owner.value());
        });
    });
}

void PortalSession::setOwner(const QString &owner)
{
    if (owner == owner_)
        return;
    const Phase former = phase_;
    owner_ = owner;
    phase_ = Phase::noPortal;
    ids_.clear();
    refusedIDs_.clear();
    triggers_.clear();
    dropLater(request_);
    dropLater(session_);
    portal_.reset();
    events_.lost();
    if (!owner.isEmpty()) {
        registerProgram();
    } else if (former == Phase::bound && mayTryAgain()) {
        setAvailability(Availability::unknown);
        wakePortal();
    } else if (former != Phase::idle) {
        // A portal of which nothing was wanted may come back when it is asked.
        setAvailability(Availability::notAvailable);
    }
}

void PortalSession::registerProgram()
{
    portal_ = std::make_unique<GlobalShortcutsPortal>(owner_, connection_);
    const auto report = [this](bool isActive) {
        return
            [this, isActive](const QDBusObjectPath &session, const QString &id, qulonglong, const QVariantMap &more) {
                if (session_ && session.path() == session_->path())
                    events_.activated(id, isActive, more);
            };
    };
    QObject::connect(portal_.get(), &GlobalShortcutsPortal::Activated, &names_, report(true));
    QObject::connect(portal_.get(), &GlobalShortcutsPortal::Deactivated, &names_, report(false));
    QObject::connect(portal_.get(), &GlobalShortcutsPortal::ShortcutsChanged, &names_,
                     [this](const QDBusObjectPath &session, const PortalShortcuts &shortcuts) {
                         if (session_ && session.path() == session_->path())
                             setTriggers(shortcuts);
                     });
    // A program that no sandbox has started says who it is, before anything else. Older portals don't know the call.
    const auto call =
        callOfThePortal(owner_, u"org.freedesktop.host.portal.Registry"_s, u"Register"_s, {appID_, QVariantMap()});
    then<QDBusPendingReply<>>(connection_.asyncCall(call), portal_.get(), [this](const auto &) { askVersion(); });
}

void PortalSession::askVersion()
{
    const auto call = callOfThePortal(owner_, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
                                      {QString(GlobalShortcutsPortal::interfaceName), u"version"_s});
    then<QDBusPendingReply<QDBusVariant>>(connection_.asyncCall(call), portal_.get(), [this](const auto &reply) {
        if (reply.isError() || reply.value().variant().toUInt() == 0) {
            setAvailability(Availability::notAvailable);
            return;
        }
        phase_ = Phase::idle;
        setAvailability(Availability::available);
        proceed();
    });
}

void PortalSession::bind(const PortalShortcuts &shortcuts)
{
    wanted_ = shortcuts;
    if (owner_.isEmpty() && !isWaking_ && !wanted_.isEmpty())
        wakePortal();
    proceed();
}

void PortalSession::proceed()
{
    const QStringList wantedIDs = idsOf(wanted_);
    if (phase_ != Phase::idle && phase_ != Phase::bound)
        return;
    if (wantedIDs == ids_ || (!wantedIDs.isEmpty() && wantedIDs == refusedIDs_))
        return;
    // A session's shortcuts can be bound but once.
    closeSession();
    if (!wantedIDs.isEmpty())
        createSession();
}

void PortalSession::createSession()
{
    phase_ = Phase::creating;
    ids_ = idsOf(wanted_);
    const QVariantMap options{{u"session_handle_token"_s, u"vantrel%1"_s.arg(++tokens_)}};
    request(u"CreateSession"_s, {}, options, [this](const QVariantMap &results) {
        // The protocol says that it is a text, and means an object's path.
        const QVariant handle = results.value(u"session_handle"_s);
        const QString path =
            handle.canConvert<QDBusObjectPath>() ? handle.value<QDBusObjectPath>().path() : handle.toString();
        if (!path.startsWith(u'/')) {
            fail(Availability::notAvailable);
            return;
        }
        session_ = std::make_unique<PortalSessionObject>(owner_, path, connection_);
        QObject::connect(session_.get(), &PortalSessionObject::Closed, &names_, [this, session = session_.get()] {
            if (session == session_.get())
                sessionClosed();
        });
        bindShortcuts();
    });
}

void PortalSession::bindShortcuts()
{
    if (wanted_.isEmpty()) {
        closeSession();
        return;
    }
    phase_ = Phase::binding;
    ids_ = idsOf(wanted_);
    const QVariantList arguments{QVariant::fromValue(QDBusObjectPath(session_->path())), QVariant::fromValue(wanted_),
                                 QString()};
    request(u"BindShortcuts"_s, arguments, {}, [this](const QVariantMap &results) { setBound(results); });
}

void PortalSession::setBound(const QVariantMap &results)
{
    phase_ = Phase::bound;
    sinceBound_.start();
    // What the answer leaves out has no keys.
    for (const QString &id : std::as_const(ids_))
        triggers_.insert(id, QString());
    setAvailability(Availability::available);
    setTriggers(shortcutsIn(results.value(u"shortcuts"_s)).value_or(PortalShortcuts()));
    proceed();
}

void PortalSession::setTriggers(const PortalShortcuts &shortcuts)
{
    for (const PortalShortcut &shortcut : shortcuts) {
        if (triggers_.contains(shortcut.id))
            triggers_.insert(shortcut.id, shortcut.properties.value(u"trigger_description"_s).toString());
    }
    events_.changed();
}

std::optional<QString> PortalSession::trigger(const QString &id) const
{
    const auto found = triggers_.constFind(id);
    return found == triggers_.cend() ? std::nullopt : std::optional(*found);
}

void PortalSession::closeSession()
{
    dropLater(request_);
    if (session_) {
        const QDBusMessage call =
            QDBusMessage::createMethodCall(owner_, session_->path(), session_->interface(), u"Close"_s);
        connection_.send(call);
        events_.lost();
    }
    dropLater(session_);
    ids_.clear();
    triggers_.clear();
    if (phase_ != Phase::noPortal)
        phase_ = Phase::idle;
}

void PortalSession::sessionClosed()
{
    const bool wasBound = phase_ == Phase::bound;
    dropLater(session_);
    events_.lost();
    if (!wasBound || !mayTryAgain()) {
        fail(Availability::refused);
        return;
    }
    closeSession();
    events_.changed();
    proceed();
}

void PortalSession::fail(Availability availability)
{
    refusedIDs_ = ids_;
    closeSession();
    setAvailability(availability);
    // Something else may be wanted by now.
    proceed();
}

void PortalSession::request(const QString &method, QVariantList arguments, QVariantMap options,
                            std::function<void(const QVariantMap &)> succeeded)
{
    const QString token = u"vantrel%1"_s.arg(++tokens_);
    options.insert(u"handle_token"_s, token);
    arguments.append(options);
    const QString sender = connection_.baseService().sliced(1).replace(u'.', u'_');
    request_ = std::make_unique<PortalRequest>(
        owner_, GlobalShortcutsPortal::objectPath + "/request/"_L1 + sender + u'/' + token, connection_);
    // Before the call, for the answer may be faster than its reply.
    QObject::connect(
        request_.get(), &PortalRequest::Response, &names_,
        [this, request = request_.get(), succeeded = std::move(succeeded)](uint response, const QVariantMap &results) {
            if (request != request_.get())
                return;
            dropLater(request_);
            if (response == 0)
                succeeded(results);
            else
                fail(Availability::refused);
        });
    const auto call = portal_->asyncCallWithArgumentList(method, arguments);
    then<QDBusPendingReply<QDBusObjectPath>>(call, request_.get(), [this, request = request_.get()](const auto &reply) {
        if (!reply.isError() || request != request_.get())
            return;
        fail(reply.error().name() == "org.freedesktop.portal.Error.NotAllowed"_L1 ? Availability::refused
                                                                                  : Availability::notAvailable);
    });
}

void PortalSession::setAvailability(Availability availability)
{
    if (availability_ == availability)
        return;
    availability_ = availability;
    events_.changed();
}

bool PortalSession::mayTryAgain()
{
    if (sinceBound_.isValid() && sinceBound_.elapsed() > lastingMilliseconds)
        losses_ = 0;
    return ++losses_ <= maximumLosses;
}

} // namespace vantrel
