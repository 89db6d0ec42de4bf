#include "KeyboardShortcuts/X11/X11HotKeys.h"

#include "KeyboardShortcuts/EvdevKeyCodes.h"
#include "KeyboardShortcuts/X11/XcbReply.h"

#include <QGuiApplication>

#include <xcb/xproto.h>

#include <limits>
#include <ranges>
#include <span>

namespace vantrel {
namespace {

/// Longer than the pause of any usual keyboard before a key that is held repeats itself.
constexpr int repeatMilliseconds = 1500;

/// None for keys that the X server has no number for.
std::optional<std::uint8_t> xKeyCode(std::uint32_t keyCode)
{
    const auto evdevCode = evdevKeyCode(keyCode);
    if (!evdevCode || *evdevCode + firstXKeyCode > std::numeric_limits<std::uint8_t>::max())
        return std::nullopt;
    return static_cast<std::uint8_t>(*evdevCode + firstXKeyCode);
}

} // namespace

std::unique_ptr<X11HotKeys> X11HotKeys::create(ActivationSource &source)
{
    const auto *application = dynamic_cast<QGuiApplication *>(QCoreApplication::instance());
    const auto *x11 = application ? application->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!x11 || !x11->connection())
        return nullptr;
    std::unique_ptr<X11HotKeys> keys(new X11HotKeys(x11->connection(), source));
    keys->events_.makeRepeatsDetectable();
    QCoreApplication::instance()->installNativeEventFilter(keys.get());
    return keys;
}

X11HotKeys::X11HotKeys(xcb_connection_t *connection, ActivationSource &source)
    : connection_(connection),
      source_(source),
      events_(connection),
      grabs_(connection)
{
}

X11HotKeys::~X11HotKeys() = default;

std::expected<void, std::int32_t> X11HotKeys::add(std::uint32_t id, std::uint32_t keyCode, std::uint32_t modifiers)
{
    const auto code = xKeyCode(keyCode);
    if (!code)
        return std::unexpected(XCB_VALUE);
    remove(id);
    const X11KeyGrabs::Combination combination(*code, modifiers);
    if (auto grabbed = grabs_.grab(combination); !grabbed)
        return grabbed;
    added_.emplace(id, combination);
    noteIfDown(*code);
    return {};
}

void X11HotKeys::noteIfDown(std::uint8_t xKeyCode)
{
    // Its repeats are reported from now on like presses.
    const XcbReply<xcb_query_keymap_reply_t> keys(
        xcb_query_keymap_reply(connection_, xcb_query_keymap(connection_), nullptr));
    if (!keys || (std::span(keys->keys)[xKeyCode / 8] >> (xKeyCode % 8) & 1) == 0)
        return;
    held_.try_emplace(
        xKeyCode,
        HeldKey{.keyCode = 0, .modifiers = 0, .isUsed = false, .certain = QDeadlineTimer(repeatMilliseconds)});
}

void X11HotKeys::remove(std::uint32_t id)
{
    const auto found = added_.find(id);
    if (found == added_.end())
        return;
    const X11KeyGrabs::Combination combination = found->second;
    added_.erase(found);
    if (idsOf(combination).empty())
        grabs_.ungrab(combination);
}

void X11HotKeys::listen(Listening listening)
{
    if (listening == listening_)
        return;
    listening_ = listening;
    // With a menu the keyboard goes from one window to another, perhaps another program's, which then hears the
    // release.
    for (HeldKey &key : held_ | std::views::values)
        key.certain.setRemainingTime(repeatMilliseconds);
}

bool X11HotKeys::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    // Events that another program has made up have one more bit set, and are none of these.
    const auto code = static_cast<const xcb_generic_event_t *>(message)->response_type;
    if (code == XCB_KEY_PRESS || code == XCB_KEY_RELEASE) {
        const auto &event = *static_cast<const xcb_key_press_event_t *>(message);
        const bool isUsed = code == XCB_KEY_PRESS ? keyPressed(event) : keyReleased(event);
        // Of the events at the root Qt only keeps the time, which it needs.
        return isUsed && event.event != grabs_.root();
    }
    if (events_.change(message) == XkbEvents::Change::keymap)
        grabs_.update();
    return false;
}

bool X11HotKeys::keyPressed(const xcb_key_press_event_t &event)
{
    if (const auto held = held_.find(event.detail); held != held_.end()) {
        if (!held->second.certain.hasExpired()) {
            held->second.certain = QDeadlineTimer(QDeadlineTimer::Forever);
            return held->second.isUsed;
        }
        held_.erase(held);
    }
    const auto modifiers = grabs_.modifiers().toCarbon(event.state);
    const auto keyCode = event.detail < firstXKeyCode ? std::nullopt : keyCodeOfEvdev(event.detail - firstXKeyCode);
    const bool canBeHotKey = listening_ == Listening::rawKeys || event.event == grabs_.root();
    if (!modifiers || !keyCode || !canBeHotKey || listening_ == Listening::nothing)
        return false;
    source_.noteTime(event.time);
    const HeldKey key{.keyCode = *keyCode, .modifiers = *modifiers, .isUsed = true, .certain{QDeadlineTimer::Forever}};
    held_.emplace(event.detail, key);
    const bool isUsed = report(event.detail, key, true);
    if (!isUsed)
        held_.erase(event.detail);
    return isUsed;
}

bool X11HotKeys::keyReleased(const xcb_key_press_event_t &event)
{
    // By the key alone, for its modifiers may have been let go first.
    const auto held = held_.find(event.detail);
    if (held == held_.end())
        return false;
    const HeldKey key = held->second;
    held_.erase(held);
    if (!key.isUsed)
        return false;
    source_.noteTime(event.time);
    report(event.detail, key, false);
    return true;
}

std::vector<std::uint32_t> X11HotKeys::idsOf(const X11KeyGrabs::Combination &combination) const
{
    std::vector<std::uint32_t> ids;
    for (const auto &[id, added] : added_) {
        if (added == combination)
            ids.push_back(id);
    }
    return ids;
}

bool X11HotKeys::report(std::uint8_t xKeyCode, const HeldKey &key, bool isPressed)
{
    if (listening_ == Listening::rawKeys) {
        const auto rawKey = handlers_.rawKey;
        return rawKey && rawKey(key.keyCode, key.modifiers, isPressed);
    }
    if (listening_ == Listening::nothing)
        return false;
    const auto hotKey = handlers_.hotKey;
    bool isUsed = false;
    for (const std::uint32_t id : idsOf({xKeyCode, key.modifiers}))
        isUsed = (hotKey && hotKey(id, isPressed)) || isUsed;
    return isUsed;
}

} // namespace vantrel
