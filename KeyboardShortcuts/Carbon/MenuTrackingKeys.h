#pragma once

#include <QtGlobal>

#include <cstdint>
#include <functional>
#include <memory>

namespace vantrel {

/// Keys that come to the program while one of its menus is open. A menu takes all events by itself then, before any
/// handler of events hears of them; so they are looked at in the queue, between two turns of the menu's own loop. Main
/// thread only.
class MenuTrackingKeys {
public:
    struct Key {
        /// A virtual key code (kVK).
        std::uint32_t code = 0;
        /// A mask of Carbon's, as the event has it.
        std::uint32_t modifiers = 0;
        bool isPressed = false;
    };
    /// True when the key was used: the menu doesn't see it then.
    using Handler = std::function<bool(const Key &key)>;

    explicit MenuTrackingKeys(Handler handler);
    ~MenuTrackingKeys();
    Q_DISABLE_COPY_MOVE(MenuTrackingKeys)

    /// Each does nothing when that is so already. `stop` may be called by the handler.
    void start();
    void stop();

private:
    struct Observer;

    void takeKeys();

    Handler handler_;
    /// Null while nothing is heard.
    std::unique_ptr<Observer> observer_;
};

} // namespace vantrel
