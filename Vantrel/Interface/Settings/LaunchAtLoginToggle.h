#pragma once

#include "Vantrel/Settings/LaunchAtLogin.h"

#include <QCheckBox>

namespace vantrel {

/// Whether the program starts with the session. It shows what holds, also when the system refused a change.
class LaunchAtLoginToggle final : public QCheckBox {
    Q_OBJECT

public:
    /// Both must outlive it.
    LaunchAtLoginToggle(LoginItem &item, FailureAlert &alert, QWidget *parent = nullptr);

    void readAgain() { setChecked(model_.isEnabled()); }

private:
    LaunchAtLogin model_;
};

} // namespace vantrel
