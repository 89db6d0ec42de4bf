#pragma once

#include <cstdint>
#include <optional>
#include <vector>

struct xcb_connection_t;

namespace vantrel {

/// The masks that the keyboard gives to modifier keys.
struct X11Modifiers {
    std::uint16_t alt = 0;
    std::uint16_t super = 0;
    /// Of the keys that stay on when they are let go: Caps Lock, and where the keyboard has them Num Lock and Scroll
    /// Lock.
    std::uint16_t locks = 0;

    /// Asks the server and waits for its answer. What it doesn't say is taken to be as on most keyboards.
    [[nodiscard]] static X11Modifiers read(xcb_connection_t *connection);

    /// The masks for Carbon's modifiers, without locks.
    [[nodiscard]] std::uint16_t fromCarbon(std::uint32_t modifiers) const;

    /// Carbon's modifiers in an event's state, whatever locks are on; none when a modifier is held that Carbon has not.
    [[nodiscard]] std::optional<std::uint32_t> toCarbon(std::uint16_t state) const;

    /// Each combination in which the locks may be on, none of them first.
    [[nodiscard]] std::vector<std::uint16_t> lockCombinations() const;

    friend bool operator==(const X11Modifiers &, const X11Modifiers &) = default;
};

} // namespace vantrel
