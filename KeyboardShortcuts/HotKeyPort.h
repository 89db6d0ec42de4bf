#pragma once

#include <QtGlobal>

#include <cstdint>
#include <expected>
#include <functional>

namespace vantrel {

/// The system's facility for keys that are heard whichever program has the keyboard. Key codes are virtual key codes of
/// the Macintosh keyboard (kVK), modifiers are Carbon's masks (cmdKey 0x100, shiftKey 0x200, optionKey 0x800,
/// controlKey 0x1000); each system translates them to its own. Main thread only, handlers included.
class HotKeyPort {
public:
    /// What the program wants to hear.
    enum class Listening : std::uint8_t {
        nothing,
        /// The keys that were added.
        hotKeys,
        /// While a menu of the program has the keyboard: every key that reaches the program.
        rawKeys,
    };

    struct Handlers {
        /// A key that was added was pressed or released, once each however long it is held. False when there is no such
        /// id: the event is left to others.
        std::function<bool(std::uint32_t id, bool isPressed)> hotKey;
        /// A key reached the program while a menu is open. True when it was used: the menu doesn't see it then.
        std::function<bool(std::uint32_t keyCode, std::uint32_t modifiers, bool isPressed)> rawKey;
    };

    virtual ~HotKeyPort() = default;
    Q_DISABLE_COPY_MOVE(HotKeyPort)

    /// Takes the place of the handlers there were.
    virtual void setHandlers(Handlers handlers) = 0;

    /// Takes a combination for this program; the id is unique among those that are added. A key that is down already is
    /// heard from its next press on, so that a combination that was just recorded does nothing yet. The error is the
    /// system's own number of what went wrong, such as that another program holds the combination.
    [[nodiscard]] virtual std::expected<void, std::int32_t> add(std::uint32_t id, std::uint32_t keyCode,
                                                                std::uint32_t modifiers) = 0;

    /// Gives a combination back. Nothing happens for an id that isn't there.
    virtual void remove(std::uint32_t id) = 0;

    /// Nothing is heard before the first call.
    virtual void listen(Listening listening) = 0;

protected:
    HotKeyPort() = default;
};

} // namespace vantrel
