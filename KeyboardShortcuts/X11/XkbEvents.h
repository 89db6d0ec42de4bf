#pragma once

#include <cstdint>
#include <optional>

struct xcb_connection_t;

namespace vantrel {

/// What the X server's keyboard extension tells. Qt asks the server for these events when it starts.
class XkbEvents {
public:
    enum class Change : std::uint8_t {
        /// Another keyboard, or other keys on the one there is.
        keymap,
        /// The user has chosen another of the keyboard's layouts.
        layout,
    };

    /// Asks the server and waits for its answer.
    explicit XkbEvents(xcb_connection_t *connection);

    /// The event is one of xcb's generic ones. None when it is of something else, as all are when the extension is
    /// missing.
    [[nodiscard]] std::optional<Change> change(const void *event) const;

    /// A key that is held is reported as pressed again and again, but only once as released.
    void makeRepeatsDetectable() const;

private:
    xcb_connection_t *connection_;
    std::uint8_t eventCode_ = 0;
};

} // namespace vantrel
