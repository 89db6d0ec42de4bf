#pragma once

#include "KeyboardShortcuts/DesktopHotKeys.h"
#include "KeyboardShortcuts/Portal/PortalInterfaces.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QElapsedTimer>
#include <QHash>
#include <QSet>

#include <functional>
#include <memory>

namespace vantrel {

/// Keeps shortcuts bound at whatever portal the session has, also one that comes later or starts anew. Nothing here
/// waits; functions are called from the event loop only.
class PortalSession {
public:
    using Availability = DesktopHotKeys::Availability;

    struct Events {
        /// The availability or the triggers have changed.
        std::function<void()> changed;
        std::function<void(const QString &id, bool isActive, const QVariantMap &options)> activated;
        /// Nothing is heard any more of shortcuts that are active.
        std::function<void()> lost;
    };

    /// The connection is the program's first to the portal, and open. `appID` is the name of the program's desktop
    /// entry.
    PortalSession(const QDBusConnection &connection, QString appID, Events events);
    ~PortalSession();
    Q_DISABLE_COPY_MOVE(PortalSession)

    /// Call once.
    void start();

    /// The shortcuts that are to be bound from now on, of different ids. The portal may ask the user.
    void bind(const PortalShortcuts &shortcuts);

    [[nodiscard]] Availability availability() const { return availability_; }
    /// The portal's words for the keys of a shortcut; empty when it has none. Null as long as it isn't bound.
    [[nodiscard]] std::optional<QString> trigger(const QString &id) const;

private:
    enum class Phase : std::uint8_t {
        /// Without a portal, or before it is known what it can.
        noPortal,
        idle,
        creating,
        binding,
        bound,
    };

    void wakePortal();
    void setOwner(const QString &owner);
    void backendChanged(const QString &name, bool isThere);
    void registerProgram();
    void askVersion();

    /// Does what is to be done next, if anything.
    void proceed();
    void createSession();
    void bindShortcuts();
    void setBound(const QVariantMap &results);
    void closeSession();
    void sessionClosed();
    void fail(Availability availability);
    void setAvailability(Availability availability);

    /// Sends a call with a token in its last argument, and hands on what it leads to.
    void request(const QString &method, QVariantList arguments, QVariantMap options,
                 std::function<void(const QVariantMap &)> succeeded);
    void setTriggers(const PortalShortcuts &shortcuts);
    [[nodiscard]] bool mayTryAgain();

    QDBusConnection connection_;
    QString appID_;
    Events events_;
    QDBusServiceWatcher names_;
    /// The parts of the desktop that portals ask. A portal doesn't tell when one has forgotten its sessions.
    QDBusServiceWatcher backends_;
    QSet<QString> lostBackends_;
    QString owner_;
    bool isWaking_ = false;
    Phase phase_ = Phase::noPortal;
    Availability availability_ = Availability::unknown;
    PortalShortcuts wanted_;
    /// The ids of what is bound, or being bound.
    QStringList ids_;
    /// The ids for which there was a refusal: the user isn't asked again.
    QStringList refusedIDs_;
    QHash<QString, QString> triggers_;
    int tokens_ = 0;
    int losses_ = 0;
    QElapsedTimer sinceBound_;
    /// Pending calls belong to this, so that no answer of a former portal is taken for one of its successor.
    std::unique_ptr<GlobalShortcutsPortal> portal_;
    std::unique_ptr<PortalRequest> request_;
    std::unique_ptr<PortalSessionObject> session_;
};

} // namespace vantrel
