#pragma once

#include "Platform/Updater.h"

#include <QCheckBox>

namespace vantrel {

/// Whether updates are looked for without being asked.
class AutomaticUpdatesToggle final : public QCheckBox {
    Q_OBJECT

public:
    /// The updater must outlive it.
    explicit AutomaticUpdatesToggle(Updater &updater, QWidget *parent = nullptr);

    void readAgain() { setChecked(updater_.automaticallyChecksForUpdates()); }

private:
    Updater &updater_;
};

} // namespace vantrel
