#pragma once

#include <QtGlobal>

#include <xcb/xproto.h>

#include <cstdlib>
#include <memory>

namespace vantrel::test {

/// Another program that is connected to the X server.
class AnotherProgram {
public:
    AnotherProgram() : connection_(xcb_connect(nullptr, nullptr)) {}
    ~AnotherProgram() { xcb_disconnect(connection_); }
    Q_DISABLE_COPY_MOVE(AnotherProgram)

    /// Whether it could take the combination.
    [[nodiscard]] bool grab(std::uint8_t xKeyCode, std::uint16_t modifiers)
    {
        const auto cookie =
            xcb_grab_key_checked(connection_, 0, root(), modifiers, xKeyCode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        const std::unique_ptr<xcb_generic_error_t, decltype(&std::free)> error(xcb_request_check(connection_, cookie),
                                                                               &std::free);
        return !error;
    }

private:
    [[nodiscard]] xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root; }

    xcb_connection_t *connection_;
};

} // namespace vantrel::test
