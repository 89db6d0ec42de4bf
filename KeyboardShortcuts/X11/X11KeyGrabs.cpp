#include "KeyboardShortcuts/X11/X11KeyGrabs.h"

#include "KeyboardShortcuts/X11/XcbReply.h"

#include <xcb/xproto.h>

namespace vantrel {

X11KeyGrabs::X11KeyGrabs(xcb_connection_t *connection)
    : connection_(connection),
      root_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root),
      modifiers_(X11Modifiers::read(connection))
{
}

X11KeyGrabs::~X11KeyGrabs()
{
    for (const Combination &combination : combinations_)
        ungrabAll(combination);
    xcb_flush(connection_);
}

std::expected<void, std::int32_t> X11KeyGrabs::grab(const Combination &combination)
{
    // The server doesn't mind a program that grabs twice, but the failure of the second would undo the first.
    if (combinations_.contains(combination))
        return {};
    if (const std::int32_t error = grabAll(combination); error != 0)
        return std::unexpected(error);
    combinations_.insert(combination);
    return {};
}

void X11KeyGrabs::ungrab(const Combination &combination)
{
    if (combinations_.erase(combination) == 0)
        return;
    ungrabAll(combination);
    xcb_flush(connection_);
}

void X11KeyGrabs::update()
{
    const X11Modifiers now = X11Modifiers::read(connection_);
    if (now == modifiers_)
        return;
    for (const Combination &combination : combinations_)
        ungrabAll(combination);
    modifiers_ = now;
    for (const Combination &combination : combinations_)
        std::ignore = grabAll(combination);
    xcb_flush(connection_);
}

std::int32_t X11KeyGrabs::grabAll(const Combination &combination)
{
    const auto [keyCode, carbonModifiers] = combination;
    const std::uint16_t modifiers = modifiers_.fromCarbon(carbonModifiers);
    std::vector<xcb_void_cookie_t> cookies;
    for (const std::uint16_t locks : modifiers_.lockCombinations()) {
        cookies.push_back(xcb_grab_key_checked(connection_, 0, root_, static_cast<std::uint16_t>(modifiers | locks),
                                               keyCode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    std::int32_t code = 0;
    for (const xcb_void_cookie_t cookie : cookies) {
        const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection_, cookie));
        if (error && code == 0)
            code = error->error_code;
    }
    if (code != 0) {
        ungrabAll(combination);
        xcb_flush(connection_);
    }
    return code;
}

void X11KeyGrabs::ungrabAll(const Combination &combination)
{
    const auto [keyCode, carbonModifiers] = combination;
    const std::uint16_t modifiers = modifiers_.fromCarbon(carbonModifiers);
    for (const std::uint16_t locks : modifiers_.lockCombinations())
        xcb_ungrab_key(connection_, keyCode, root_, static_cast<std::uint16_t>(modifiers | locks));
}

} // namespace vantrel
