#pragma once

#include "KeyboardShortcuts/HotKeyPort.h"
#include "KeyboardShortcuts/Shortcut.h"

#include <functional>
#include <map>
#include <optional>

namespace vantrel {

/// The shortcuts that the system is asked to watch, each with what it does. It has the form of the Carbon Event
/// Manager, which every system's port takes on. Main thread only.
class CarbonKeyboardShortcuts {
public:
    using Handler = std::function<void(const Shortcut &shortcut)>;
    using Print = std::function<void(const QString &line)>;

    /// Port and layout must outlive it; `print` gets a line about each shortcut that the system refuses.
    CarbonKeyboardShortcuts(HotKeyPort &port, const KeyboardLayout &layout, Print print);
    /// Gives all shortcuts back.
    ~CarbonKeyboardShortcuts();
    Q_DISABLE_COPY_MOVE(CarbonKeyboardShortcuts)

    /// A shortcut that the system refuses stays unregistered. Ends the program for numbers beyond 32 bits, which no key
    /// has.
    void registerShortcut(const Shortcut &shortcut, Handler onKeyDown, Handler onKeyUp);
    /// Drops every registration of the shortcut.
    void unregisterShortcut(const Shortcut &shortcut);

    /// The id under which the system watches the shortcut; none when it doesn't.
    [[nodiscard]] std::optional<std::uint32_t> hotKeyId(const Shortcut &shortcut) const;

    /// What is to be heard from now on. Hotkeys are given back to the system while something else is heard; they keep
    /// their ids and return with `Listening::hotKeys`.
    void setListening(HotKeyPort::Listening listening);

    /// Makes the system's side match what is to be heard. Nothing happens before the first shortcut is registered.
    void updateEventHandler();

private:
    struct HotKey {
        Shortcut shortcut;
        std::uint32_t carbonHotKeyId = 0;
        /// The system holds it; false while it is only kept here.
        bool isRegistered = false;
        Handler onKeyDown;
        Handler onKeyUp;
    };

    [[nodiscard]] bool registerWithSystem(HotKey &hotKey);
    void installEventHandler();
    void registerAgain();
    void softUnregisterAll();
    [[nodiscard]] bool takeHotKey(std::uint32_t id, bool isPressed);
    [[nodiscard]] bool takeRawKey(std::uint32_t keyCode, std::uint32_t modifiers, bool isPressed);

    HotKeyPort &port_;
    const KeyboardLayout &layout_;
    Print print_;
    std::map<std::uint32_t, HotKey> hotKeys_;
    quint64 hotKeyIdCounter_ = 0;
    bool hasEventHandler_ = false;
    HotKeyPort::Listening listening_ = HotKeyPort::Listening::hotKeys;
};

} // namespace vantrel
