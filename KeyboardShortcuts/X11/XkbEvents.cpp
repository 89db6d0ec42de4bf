#include "KeyboardShortcuts/X11/XkbEvents.h"

#include "KeyboardShortcuts/X11/XcbReply.h"
#include "KeyboardShortcuts/X11/Xkb.h"

namespace vantrel {
namespace {

constexpr std::uint8_t sentByAProgram = 0x80;

} // namespace

XkbEvents::XkbEvents(xcb_connection_t *connection) : connection_(connection)
{
    // Nothing of the extension answers before its version is settled.
    const auto version = xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    const XcbReply<xcb_xkb_use_extension_reply_t> reply(xcb_xkb_use_extension_reply(connection, version, nullptr));
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(connection, &xcb_xkb_id);
    if (reply && reply->supported != 0 && extension && extension->present != 0)
        eventCode_ = extension->first_event;
}

std::optional<XkbEvents::Change> XkbEvents::change(const void *event) const
{
    const std::uint8_t code = static_cast<const xcb_generic_event_t *>(event)->response_type & ~sentByAProgram;
    if (code == XCB_MAPPING_NOTIFY)
        return Change::keymap;
    if (eventCode_ == 0 || code != eventCode_)
        return std::nullopt;
    const auto *stateChange = static_cast<const xcb_xkb_state_notify_event_t *>(event);
    switch (stateChange->xkbType) {
    case XCB_XKB_NEW_KEYBOARD_NOTIFY:
    case XCB_XKB_MAP_NOTIFY: return Change::keymap;
    case XCB_XKB_STATE_NOTIFY:
        return (stateChange->changed & XCB_XKB_STATE_PART_GROUP_STATE) != 0 ? std::optional(Change::layout)
                                                                            : std::nullopt;
    default: return std::nullopt;
    }
}

void XkbEvents::makeRepeatsDetectable() const
{
    if (eventCode_ == 0)
        return;
    constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto cookie = xcb_xkb_per_client_flags(connection_, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0);
    const XcbReply<xcb_xkb_per_client_flags_reply_t> reply(
        xcb_xkb_per_client_flags_reply(connection_, cookie, nullptr));
}

} // namespace vantrel
