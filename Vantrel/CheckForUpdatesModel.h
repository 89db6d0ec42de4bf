#pragma once

#include "Platform/Updater.h"

#include <QObject>

namespace vantrel {

/// Whether the command that checks for updates can be chosen now. Main thread only.
class CheckForUpdatesModel final : public QObject {
    Q_OBJECT

public:
    /// The updater must outlive the model.
    explicit CheckForUpdatesModel(Updater &updater);

    [[nodiscard]] bool canCheckForUpdates() const { return canCheckForUpdates_; }
    void checkForUpdates();

Q_SIGNALS:
    void canCheckForUpdatesChanged(bool canCheck);

private:
    Updater &updater_;
    bool canCheckForUpdates_ = false;
};

} // namespace vantrel
