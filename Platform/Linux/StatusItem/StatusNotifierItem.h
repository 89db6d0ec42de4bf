#pragma once

#include "Platform/ActivationSource.h"
#include "Platform/Linux/Environment.h"
#include "Platform/StatusItem.h"

#include <QDBusConnection>

#include <memory>

namespace vantrel {

class DBusMenuObject;
class StatusNotifierObject;
class WatcherRegistration;

/// The symbol in panels that follow the StatusNotifierItem Specification, with its menu drawn by them. One for each
/// connection; panels show it until the connection ends.
class StatusNotifierItem final : public StatusItem {
public:
    /// `environment` says where icon themes are. `source` lives longer than this, and is told what panels say of the
    /// user's acts.
    StatusNotifierItem(QDBusConnection connection, ActivationSource &source, Environment environment);
    ~StatusNotifierItem() override;
    Q_DISABLE_COPY_MOVE(StatusNotifierItem)

    void start(Content content, std::function<void(bool isShown)> shownChanged) override;
    void updateMenu() override;

private:
    [[nodiscard]] bool exportObjects();

    QDBusConnection connection_;
    ActivationSource &source_;
    Environment environment_;
    std::unique_ptr<DBusMenuObject> menu_;
    std::unique_ptr<StatusNotifierObject> item_;
    std::unique_ptr<WatcherRegistration> registration_;
};

} // namespace vantrel
