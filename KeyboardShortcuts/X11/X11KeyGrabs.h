#pragma once

#include "KeyboardShortcuts/X11/X11Modifiers.h"

#include <QtGlobal>

#include <expected>
#include <set>
#include <utility>

namespace vantrel {

/// Keys of the X server that are reported to this connection whichever window has the keyboard, whatever locks are on.
class X11KeyGrabs {
public:
    /// A key code of the X server with Carbon's modifiers.
    using Combination = std::pair<std::uint8_t, std::uint32_t>;

    /// The connection is open as long as this lives.
    explicit X11KeyGrabs(xcb_connection_t *connection);
    ~X11KeyGrabs();
    Q_DISABLE_COPY_MOVE(X11KeyGrabs)

    /// Takes a combination, which may be taken already. The error is the server's code; nothing is taken then.
    [[nodiscard]] std::expected<void, std::int32_t> grab(const Combination &combination);
    void ungrab(const Combination &combination);

    /// The keyboard may have other modifiers now: takes all combinations anew if need be. One that another program
    /// holds by now stays without effect.
    void update();

    [[nodiscard]] const X11Modifiers &modifiers() const { return modifiers_; }
    /// The window of the events that come of this.
    [[nodiscard]] std::uint32_t root() const { return root_; }

private:
    [[nodiscard]] std::int32_t grabAll(const Combination &combination);
    void ungrabAll(const Combination &combination);

    xcb_connection_t *connection_;
    std::uint32_t root_;
    X11Modifiers modifiers_;
    std::set<Combination> combinations_;
};

} // namespace vantrel
