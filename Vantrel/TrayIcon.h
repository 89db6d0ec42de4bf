#pragma once

namespace vantrel {

/// The program's symbol as a small window of its own in a tray, or as the system's menu-bar item. Main thread only.
class TrayIcon {
public:
    virtual ~TrayIcon() = default;

    /// Shown as soon as there is a tray, and again whenever one comes.
    virtual void show() = 0;
    virtual void hide() = 0;
    /// Whether there is a tray now.
    [[nodiscard]] virtual bool isAvailable() const = 0;
};

} // namespace vantrel
