#pragma once

#include "Platform/Linux/StatusItem/StatusNotifierWatcher.h"

#include <QDBusServiceWatcher>

#include <functional>
#include <memory>
#include <optional>

namespace vantrel {

/// Keeps a connection's item registered with whatever watcher the session has, also with one that comes later, and
/// knows whether a panel draws it.
class WatcherRegistration {
public:
    /// `connection` is open. `shownChanged` is called from the event loop only, first as soon as it is known.
    WatcherRegistration(const QDBusConnection &connection, std::function<void(bool isShown)> shownChanged);

    /// The item's object must be there by now. Call once.
    void start();

private:
    void setOwner(const QString &owner);
    void registerItem();
    void askForHost();
    void setHasHost(bool hasHost);
    void report();

    QDBusConnection connection_;
    std::function<void(bool)> shownChanged_;
    QDBusServiceWatcher names_;
    /// Empty when there is no watcher.
    std::optional<QString> owner_;
    std::optional<bool> isRegistered_;
    std::optional<bool> hasHost_;
    std::optional<bool> isShown_;
    /// Pending calls belong to these, so that no answer of a former watcher is taken for one of its successor.
    std::unique_ptr<StatusNotifierWatcher> watcher_;
    std::unique_ptr<StatusNotifierWatcherProperties> properties_;
};

} // namespace vantrel
