#pragma once

#include "Platform/TrayHost.h"
#include "Vantrel/Interface/PopupMenu.h"
#include "Vantrel/TrayIcon.h"

#include <QSystemTrayIcon>

namespace vantrel {

/// The symbol in a tray that takes windows, or in the macOS menu bar.
class SystemTrayIcon final : public TrayIcon {
public:
    /// The menu must outlive it.
    SystemTrayIcon(PopupMenu &menu, TrayHost host);

    void show() override { icon_.show(); }
    void hide() override { icon_.hide(); }
    [[nodiscard]] bool isAvailable() const override { return QSystemTrayIcon::isSystemTrayAvailable(); }

private:
    void activate(QSystemTrayIcon::ActivationReason reason);

    PopupMenu &menu_;
    QSystemTrayIcon icon_;
};

} // namespace vantrel
