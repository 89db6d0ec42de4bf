#include "KeyboardShortcuts/X11/X11Modifiers.h"

#include "KeyboardShortcuts/ModifierFlags.h"
#include "KeyboardShortcuts/X11/XcbReply.h"

#include <xcb/xproto.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <initializer_list>
#include <span>

namespace vantrel {
namespace {

constexpr std::uint16_t allModifiers = 0xff;

/// Which keys are modifiers, and what keys mean.
class ModifierKeys {
public:
    ModifierKeys(xcb_connection_t *connection, const xcb_setup_t &setup) : firstCode_(setup.min_keycode)
    {
        const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
        const auto modifiers = xcb_get_modifier_mapping(connection);
        const auto symbols = xcb_get_keyboard_mapping(connection, setup.min_keycode, count);
        modifiers_.reset(xcb_get_modifier_mapping_reply(connection, modifiers, nullptr));
        symbols_.reset(xcb_get_keyboard_mapping_reply(connection, symbols, nullptr));
    }

    /// The first modifier from Mod1 to Mod5 with a key of one of these symbols; 0 when there is none.
    [[nodiscard]] std::uint16_t find(std::initializer_list<xcb_keysym_t> symbols) const
    {
        if (!modifiers_ || !symbols_)
            return 0;
        const std::span codes(xcb_get_modifier_mapping_keycodes(modifiers_.get()),
                              static_cast<std::size_t>(xcb_get_modifier_mapping_keycodes_length(modifiers_.get())));
        const std::size_t perModifier = modifiers_->keycodes_per_modifier;
        for (std::size_t modifier = XCB_MAP_INDEX_1; modifier <= XCB_MAP_INDEX_5; ++modifier) {
            for (const xcb_keycode_t code : codes.subspan(modifier * perModifier, perModifier)) {
                if (has(code, symbols))
                    return static_cast<std::uint16_t>(1U << modifier);
            }
        }
        return 0;
    }

private:
    [[nodiscard]] bool has(xcb_keycode_t code, std::initializer_list<xcb_keysym_t> wanted) const
    {
        const std::span all(xcb_get_keyboard_mapping_keysyms(symbols_.get()),
                            static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(symbols_.get())));
        const std::size_t perCode = symbols_->keysyms_per_keycode;
        const std::size_t first = (static_cast<std::size_t>(code) - firstCode_) * perCode;
        // Modifiers without so many keys are filled up with 0.
        if (code < firstCode_ || first + perCode > all.size())
            return false;
        return std::ranges::find_first_of(all.subspan(first, perCode), wanted) != all.subspan(first, perCode).end();
    }

    xcb_keycode_t firstCode_;
    XcbReply<xcb_get_modifier_mapping_reply_t> modifiers_;
    XcbReply<xcb_get_keyboard_mapping_reply_t> symbols_;
};

} // namespace

X11Modifiers X11Modifiers::read(xcb_connection_t *connection)
{
    const ModifierKeys keys(connection, *xcb_get_setup(connection));
    X11Modifiers modifiers;
    modifiers.alt = keys.find({XKB_KEY_Alt_L, XKB_KEY_Alt_R});
    if (modifiers.alt == 0)
        modifiers.alt = XCB_MOD_MASK_1;
    modifiers.super = keys.find({XKB_KEY_Super_L, XKB_KEY_Super_R});
    if (modifiers.super == 0)
        modifiers.super = XCB_MOD_MASK_4;
    const auto used =
        static_cast<std::uint16_t>(XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | modifiers.alt | modifiers.super);
    const auto locks = static_cast<std::uint16_t>(XCB_MOD_MASK_LOCK | keys.find({XKB_KEY_Num_Lock}) |
                                                  keys.find({XKB_KEY_Scroll_Lock}));
    modifiers.locks = static_cast<std::uint16_t>(locks & ~used);
    return modifiers;
}

std::uint16_t X11Modifiers::fromCarbon(std::uint32_t modifiers) const
{
    std::uint16_t mask = 0;
    if ((modifiers & CarbonModifier::shift) != 0)
        mask |= XCB_MOD_MASK_SHIFT;
    if ((modifiers & CarbonModifier::control) != 0)
        mask |= XCB_MOD_MASK_CONTROL;
    if ((modifiers & CarbonModifier::option) != 0)
        mask |= alt;
    if ((modifiers & CarbonModifier::command) != 0)
        mask |= super;
    return mask;
}

std::optional<std::uint32_t> X11Modifiers::toCarbon(std::uint16_t state) const
{
    const auto held = static_cast<std::uint16_t>(state & allModifiers & ~locks);
    std::uint32_t modifiers = 0;
    for (const std::uint32_t one :
         {CarbonModifier::command, CarbonModifier::shift, CarbonModifier::option, CarbonModifier::control}) {
        if ((held & fromCarbon(one)) != 0)
            modifiers |= one;
    }
    return fromCarbon(modifiers) == held ? std::optional(modifiers) : std::nullopt;
}

std::vector<std::uint16_t> X11Modifiers::lockCombinations() const
{
    std::vector<std::uint16_t> combinations;
    for (std::uint16_t mask = 0; mask <= locks; ++mask) {
        if ((mask & ~locks) == 0)
            combinations.push_back(mask);
    }
    return combinations;
}

} // namespace vantrel
