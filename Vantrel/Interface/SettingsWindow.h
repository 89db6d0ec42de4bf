#pragma once

#include "Vantrel/SettingsWindows.h"

#include <QLabel>
#include <QWidget>

namespace vantrel {

/// The settings window: for now it says that the program is there.
class SettingsWindow final : public QWidget {
public:
    /// The count must outlive it.
    explicit SettingsWindow(SettingsWindows &windows);

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    SettingsWindows &windows_;
    QLabel *text_;
    bool isCounted_ = false;
};

} // namespace vantrel
