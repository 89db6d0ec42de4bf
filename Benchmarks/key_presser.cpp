// Presses keys as a keyboard does, and says when. A line on the standard input names keys by their X keysyms, separated
// by blanks: they go down one after the other and up in the opposite order. The answer, a line on the standard output,
// is the monotonic clock in nanoseconds before the last of them goes up. It ends with its standard input.

#include <unistd.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <memory>
#include <ranges>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};

std::int64_t now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return (time.tv_sec * std::int64_t{1'000'000'000}) + time.tv_nsec;
}

class KeyPresser {
public:
    explicit KeyPresser(xcb_connection_t *connection)
        : connection_(connection),
          root_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root)
    {
    }

    /// When the last key went up.
    [[nodiscard]] std::int64_t press(const std::vector<xcb_keysym_t> &keys) const
    {
        for (const xcb_keysym_t key : keys)
            send(XCB_KEY_PRESS, key);
        settle();
        const std::int64_t released = now();
        for (const xcb_keysym_t key : keys | std::views::reverse)
            send(XCB_KEY_RELEASE, key);
        settle();
        return released;
    }

private:
    void send(std::uint8_t type, xcb_keysym_t key) const
    {
        xcb_test_fake_input(connection_, type, keyCode(key), XCB_CURRENT_TIME, root_, 0, 0, 0);
    }

    /// Until the server has taken everything in.
    void settle() const
    {
        using Reply = std::unique_ptr<xcb_get_input_focus_reply_t, Free>;
        const Reply reply(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    }

    [[nodiscard]] xcb_keycode_t keyCode(xcb_keysym_t wanted) const
    {
        const xcb_setup_t *setup = xcb_get_setup(connection_);
        const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
        const auto cookie = xcb_get_keyboard_mapping(connection_, setup->min_keycode, count);
        const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, Free> reply(
            xcb_get_keyboard_mapping_reply(connection_, cookie, nullptr));
        if (!reply)
            return 0;
        const xcb_keysym_t *first = xcb_get_keyboard_mapping_keysyms(reply.get());
        const xcb_keysym_t *last = first + xcb_get_keyboard_mapping_keysyms_length(reply.get());
        const auto place = std::find(first, last, wanted) - first;
        return static_cast<xcb_keycode_t>(setup->min_keycode + (place / reply->keysyms_per_keycode));
    }

    xcb_connection_t *connection_;
    xcb_window_t root_;
};

} // namespace

int main()
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0) {
        std::fputs("key_presser: there is no X server\n", stderr);
        return 1;
    }
    const KeyPresser presser(connection);
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream words(line);
        std::vector<xcb_keysym_t> keys;
        for (xcb_keysym_t key = 0; words >> key;)
            keys.push_back(key);
        std::cout << presser.press(keys) << std::endl;
    }
    xcb_disconnect(connection);
    return 0;
}
