#pragma once

#include "Platform/LogChannel.h"
#include "Platform/StatusItem.h"
#include "Vantrel/TrayIcon.h"

#include <QTimer>

#include <chrono>
#include <memory>

namespace vantrel {

/// Keeps the program's symbol where the desktop has a place for it: in a panel that draws menus itself, else in a tray.
/// Where there is neither, it says so once. Main thread only.
class TrayPresence final : public QObject {
public:
    struct Environment {
        /// Null where there are no such panels.
        StatusItem *statusItem = nullptr;
        /// Makes the other symbol. Called when it is first needed: it settles for what it finds then.
        std::function<std::unique_ptr<TrayIcon>()> makeTrayIcon;
        LogSink &log;
        /// Tells the user that there is no place for the symbol.
        std::function<void()> tellHomeless;
        /// Called once, as soon as it is known where the symbol goes. May be empty.
        std::function<void()> placed = {};
    };

    /// Desktops start their panels beside everything else, and some take their time.
    static constexpr std::chrono::milliseconds defaultPatience = std::chrono::seconds(10);

    explicit TrayPresence(Environment environment, std::chrono::milliseconds patience = defaultPatience);

    void start(StatusItem::Content content);

    /// Whether a panel shows the symbol and the menu; else, this program does.
    [[nodiscard]] bool isInPanel() const { return isInPanel_; }

private:
    void takePanel(bool isShown);
    void showTrayIcon();
    void tellPlaced();
    void settle();

    Environment environment_;
    LogChannel log_;
    std::unique_ptr<TrayIcon> trayIcon_;
    bool isInPanel_ = false;
    QTimer patience_;
};

} // namespace vantrel
