#pragma once

#include "KeyboardShortcuts/DesktopHotKeys.h"
#include "KeyboardShortcuts/X11/X11KeyGrabs.h"
#include "KeyboardShortcuts/X11/XkbEvents.h"
#include "Platform/ActivationSource.h"

#include <QAbstractNativeEventFilter>
#include <QDeadlineTimer>

#include <map>
#include <memory>
#include <vector>

// The library's name.
// NOLINTNEXTLINE(readability-identifier-naming)
struct xcb_key_press_event_t;

namespace vantrel {

/// Hotkeys of the X server. Its errors are the numbers of the X protocol, such as 10 (BadAccess) for a combination that
/// another program holds.
class X11HotKeys final : public DesktopHotKeys, private QAbstractNativeEventFilter {
public:
    /// Null where the program's windows aren't on an X server. `source` lives longer than this and is told when keys
    /// are pressed. The QGuiApplication lives longer too.
    [[nodiscard]] static std::unique_ptr<X11HotKeys> create(ActivationSource &source);

    ~X11HotKeys() override;
    Q_DISABLE_COPY_MOVE(X11HotKeys)

    void setHandlers(Handlers handlers) override { handlers_ = std::move(handlers); }
    [[nodiscard]] std::expected<void, std::int32_t> add(std::uint32_t id, std::uint32_t keyCode,
                                                        std::uint32_t modifiers) override;
    void remove(std::uint32_t id) override;
    void listen(Listening listening) override;

    [[nodiscard]] Availability availability() const override { return Availability::available; }
    [[nodiscard]] std::optional<QString> grantedTrigger(std::uint32_t /*id*/) const override { return std::nullopt; }
    void onChange(std::function<void()> /*changed*/) override {}

private:
    /// A key that was pressed, until it is released.
    struct HeldKey {
        std::uint32_t keyCode = 0;
        std::uint32_t modifiers = 0;
        /// Whether the press was used. It wasn't if the key was down before it was added.
        bool isUsed = true;
        /// From then on the key may have been released without a word to this program.
        QDeadlineTimer certain{QDeadlineTimer::Forever};
    };

    X11HotKeys(xcb_connection_t *connection, ActivationSource &source);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    /// Each: whether a menu of the program, which is to see the event otherwise, must not.
    [[nodiscard]] bool keyPressed(const xcb_key_press_event_t &event);
    [[nodiscard]] bool keyReleased(const xcb_key_press_event_t &event);
    /// Tells the handlers, and whether they have used it.
    bool report(std::uint8_t xKeyCode, const HeldKey &key, bool isPressed);

    /// A key that is down already is heard from its next press.
    void noteIfDown(std::uint8_t xKeyCode);
    [[nodiscard]] std::vector<std::uint32_t> idsOf(const X11KeyGrabs::Combination &combination) const;

    xcb_connection_t *connection_;
    ActivationSource &source_;
    XkbEvents events_;
    X11KeyGrabs grabs_;
    Handlers handlers_;
    Listening listening_ = Listening::nothing;
    std::map<std::uint32_t, X11KeyGrabs::Combination> added_;
    /// By the X server's key codes.
    std::map<std::uint8_t, HeldKey> held_;
};

} // namespace vantrel
