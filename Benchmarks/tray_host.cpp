// A tray for icons that are windows, and nothing else: it takes them in, clicks on them when told to, and says when
// what happened. So little of the time that is measured is its own.
//
// Commands on the standard input, a line each: "click 0" presses and releases the right button over the first icon,
// "escape" that key. Reports on the standard output, a line each with the monotonic clock in nanoseconds:
// "ready", "asked" (an icon asks to be taken in), "shown" (its window is mapped), "gone", "clicked", "opened" and
// "closed" (a menu's window). It ends with its standard input.

#include <poll.h>
#include <unistd.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::uint16_t iconSize = 24;
constexpr std::uint16_t width = 10 * iconSize;
constexpr std::uint8_t rightButton = 3;
constexpr xcb_keysym_t escapeKey = 0xff1b;
constexpr std::uint8_t eventTypeMask = 0x7f;

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};

template <typename T>
using Reply = std::unique_ptr<T, Free>;

std::int64_t now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return (time.tv_sec * std::int64_t{1'000'000'000}) + time.tv_nsec;
}

void report(const std::string &what, std::int64_t when)
{
    const std::string line = what + ' ' + std::to_string(when) + '\n';
    std::fputs(line.c_str(), stdout);
    std::fflush(stdout);
}

class TrayHost {
public:
    explicit TrayHost(xcb_connection_t *connection)
        : connection_(connection),
          screen_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data),
          opcode_(atom("_NET_SYSTEM_TRAY_OPCODE")),
          xembed_(atom("_XEMBED"))
    {
    }

    /// Takes the tray's place and tells it to those that wait for one.
    void start()
    {
        const std::uint32_t rootEvents = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_, screen_->root, XCB_CW_EVENT_MASK, &rootEvents);
        window_ = xcb_generate_id(connection_);
        const std::array<std::uint32_t, 2> values{1, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
        xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window_, screen_->root, 0, 0, width, iconSize, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen_->root_visual,
                          XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
        xcb_map_window(connection_, window_);
        const xcb_atom_t selection = atom("_NET_SYSTEM_TRAY_S0");
        xcb_set_selection_owner(connection_, window_, selection, XCB_CURRENT_TIME);
        send(screen_->root, atom("MANAGER"), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
             {XCB_CURRENT_TIME, selection, window_, 0, 0});
        xcb_flush(connection_);
        report("ready", now());
    }

    void takeEvents()
    {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)})
            take(*event);
        xcb_flush(connection_);
    }

    void click(int icon)
    {
        const auto place = static_cast<std::int16_t>((icon * iconSize) + (iconSize / 2));
        isClicked_ = true;
        report("clicked", now());
        xcb_test_fake_input(connection_, XCB_MOTION_NOTIFY, 0, 0, screen_->root, place, iconSize / 2, 0);
        xcb_test_fake_input(connection_, XCB_BUTTON_PRESS, rightButton, 0, screen_->root, 0, 0, 0);
        xcb_test_fake_input(connection_, XCB_BUTTON_RELEASE, rightButton, 0, screen_->root, 0, 0, 0);
        xcb_flush(connection_);
    }

    void pressEscape()
    {
        const xcb_keycode_t key = keyCode(escapeKey);
        xcb_test_fake_input(connection_, XCB_KEY_PRESS, key, 0, screen_->root, 0, 0, 0);
        xcb_test_fake_input(connection_, XCB_KEY_RELEASE, key, 0, screen_->root, 0, 0, 0);
        xcb_flush(connection_);
    }

private:
    [[nodiscard]] xcb_atom_t atom(std::string_view name) const
    {
        const auto cookie = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
        const Reply<xcb_intern_atom_reply_t> reply{xcb_intern_atom_reply(connection_, cookie, nullptr)};
        return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }

    [[nodiscard]] xcb_keycode_t keyCode(xcb_keysym_t wanted) const
    {
        const xcb_setup_t *setup = xcb_get_setup(connection_);
        const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
        const auto cookie = xcb_get_keyboard_mapping(connection_, setup->min_keycode, count);
        const Reply<xcb_get_keyboard_mapping_reply_t> reply{
            xcb_get_keyboard_mapping_reply(connection_, cookie, nullptr)};
        if (!reply)
            return 0;
        const std::span keys(xcb_get_keyboard_mapping_keysyms(reply.get()),
                             static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(reply.get())));
        const auto place = std::ranges::find(keys, wanted) - keys.begin();
        return static_cast<xcb_keycode_t>(setup->min_keycode + (place / reply->keysyms_per_keycode));
    }

    void send(xcb_window_t window, xcb_atom_t type, std::uint32_t mask, std::array<std::uint32_t, 5> data) const
    {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = type;
        std::ranges::copy(data, std::begin(message.data.data32));
        // The protocol sends events of 32 bytes, whatever their type.
        xcb_send_event(connection_, 0, window, mask, reinterpret_cast<const char *>(&message));
    }

    void take(const xcb_generic_event_t &event)
    {
        const std::int64_t time = now();
        switch (event.response_type & eventTypeMask) {
        case XCB_CLIENT_MESSAGE: takeMessage(reinterpret_cast<const xcb_client_message_event_t &>(event), time); break;
        case XCB_MAP_NOTIFY: takeMapped(reinterpret_cast<const xcb_map_notify_event_t &>(event), time); break;
        case XCB_UNMAP_NOTIFY: takeUnmapped(reinterpret_cast<const xcb_unmap_notify_event_t &>(event), time); break;
        case XCB_DESTROY_NOTIFY: takeEnded(reinterpret_cast<const xcb_destroy_notify_event_t &>(event), time); break;
        default: break;
        }
    }

    void takeMessage(const xcb_client_message_event_t &message, std::int64_t time)
    {
        const std::span<const std::uint32_t, 5> data(message.data.data32);
        const std::uint32_t requestDock = 0;
        if (message.type != opcode_ || data[1] != requestDock)
            return;
        report("asked", time);
        const xcb_window_t icon = data[2];
        const auto place = static_cast<std::int16_t>(icons_.size() * iconSize);
        xcb_reparent_window(connection_, icon, window_, place, 0);
        const std::array<std::uint32_t, 2> size{iconSize, iconSize};
        xcb_configure_window(connection_, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size.data());
        const std::uint32_t embeddedNotify = 0;
        send(icon, xembed_, XCB_EVENT_MASK_NO_EVENT, {XCB_CURRENT_TIME, embeddedNotify, 0, window_, 0});
        xcb_map_window(connection_, icon);
        icons_.push_back(icon);
    }

    void takeMapped(const xcb_map_notify_event_t &mapped, std::int64_t time)
    {
        if (std::ranges::find(icons_, mapped.window) != icons_.end()) {
            report("shown", time);
        } else if (isClicked_ && mapped.event == screen_->root && mapped.override_redirect != 0) {
            isClicked_ = false;
            menu_ = mapped.window;
            report("opened", time);
        }
    }

    void takeUnmapped(const xcb_unmap_notify_event_t &unmapped, std::int64_t time)
    {
        if (unmapped.window != menu_)
            return;
        menu_ = XCB_WINDOW_NONE;
        report("closed", time);
    }

    void takeEnded(const xcb_destroy_notify_event_t &ended, std::int64_t time)
    {
        if (std::erase(icons_, ended.window) != 0)
            report("gone", time);
    }

    xcb_connection_t *connection_;
    const xcb_screen_t *screen_;
    xcb_atom_t opcode_;
    xcb_atom_t xembed_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
    std::vector<xcb_window_t> icons_;
    xcb_window_t menu_ = XCB_WINDOW_NONE;
    /// No menu has opened since.
    bool isClicked_ = false;
};

/// False at the input's end. Each command comes in one piece: who writes it waits for the report.
bool takeCommand(TrayHost &host)
{
    std::array<char, 64> buffer{};
    const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count <= 0)
        return false;
    const std::string_view command(buffer.data(), static_cast<std::size_t>(count));
    if (command.starts_with("click ") && command.size() == std::string_view("click 0\n").size())
        host.click(command[6] - '0');
    else if (command == "escape\n")
        host.pressEscape();
    return true;
}

} // namespace

int main()
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(xcb_connect(nullptr, nullptr),
                                                                                  &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) != 0) {
        std::fputs("tray_host: there is no display\n", stderr);
        return 1;
    }
    TrayHost host(connection.get());
    host.start();
    std::array<pollfd, 2> sources{
        pollfd{.fd = xcb_get_file_descriptor(connection.get()), .events = POLLIN, .revents = 0},
        pollfd{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0}};
    while (xcb_connection_has_error(connection.get()) == 0) {
        // Replies that were waited for may have brought events along.
        host.takeEvents();
        if (poll(sources.data(), sources.size(), -1) < 0)
            return 1;
        if (sources[1].revents != 0 && !takeCommand(host))
            return 0;
    }
    return 1;
}
