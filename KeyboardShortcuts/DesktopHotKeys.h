#pragma once

#include "KeyboardShortcuts/HotKeyPort.h"

#include <QString>

#include <optional>

namespace vantrel {

/// Hotkeys, and what the settings have to say of them. Main thread only.
class DesktopHotKeys : public HotKeyPort {
public:
    enum class Availability : std::uint8_t {
        /// The desktop hasn't answered yet.
        unknown,
        available,
        /// This desktop has no hotkeys for programs.
        notAvailable,
        /// It has, but the user or the desktop said no.
        refused,
    };

    [[nodiscard]] virtual Availability availability() const = 0;

    /// The keys that the desktop gave for an id, in its own words for the user; empty when it gave none. Null as long
    /// as it hasn't answered, and where a combination is given just as it was asked for.
    [[nodiscard]] virtual std::optional<QString> grantedTrigger(std::uint32_t id) const = 0;

    /// Calls back from the event loop whenever one of the two has changed; takes the place of the function there was.
    virtual void onChange(std::function<void()> changed) = 0;
};

} // namespace vantrel
