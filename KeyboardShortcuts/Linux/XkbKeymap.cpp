#include "KeyboardShortcuts/Linux/XkbKeymap.h"

#include "KeyboardShortcuts/EvdevKeyCodes.h"

#include <xkbcommon/xkbcommon.h>

#include <array>

namespace vantrel {
namespace {

/// No key code of the Macintosh keyboard is larger.
constexpr std::uint32_t lastKeyCode = 0x7f;

/// The character of a symbol, 0 for one that stands for none. Return, Tab and their like act; they type nothing.
char32_t characterOf(xkb_keysym_t symbol)
{
    constexpr char32_t firstPrintable = 0x20;
    constexpr char32_t firstOfTheUpperControls = 0x7f;
    constexpr char32_t lastOfTheUpperControls = 0x9f;
    const char32_t character = xkb_keysym_to_utf32(symbol);
    const bool isControl =
        character < firstPrintable || (character >= firstOfTheUpperControls && character <= lastOfTheUpperControls);
    return isControl ? 0 : character;
}

} // namespace

void XkbDeleter::operator()(xkb_context *context) const
{
    xkb_context_unref(context);
}

void XkbDeleter::operator()(xkb_keymap *keymap) const
{
    xkb_keymap_unref(keymap);
}

XkbKeymap::Context XkbKeymap::makeContext()
{
    return Context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
}

XkbKeymap XkbKeymap::makeDefault()
{
    const Context context = makeContext();
    return XkbKeymap(
        Keymap(context ? xkb_keymap_new_from_names(context.get(), nullptr, XKB_KEYMAP_COMPILE_NO_FLAGS) : nullptr));
}

std::optional<QString> XkbKeymap::character(std::uint32_t keyCode, std::uint32_t layout) const
{
    const char32_t character = characterOf(symbol(keyCode, layout));
    return character == 0 ? std::nullopt : std::optional(QString::fromUcs4(&character, 1));
}

std::optional<QString> XkbKeymap::symbolName(std::uint32_t keyCode, std::uint32_t layout) const
{
    const xkb_keysym_t found = symbol(keyCode, layout);
    std::array<char, 64> name{};
    if (found == XKB_KEY_NoSymbol || xkb_keysym_get_name(found, name.data(), name.size()) <= 0)
        return std::nullopt;
    return QString::fromLatin1(name.data());
}

std::uint32_t XkbKeymap::asciiLayout(std::uint32_t active) const
{
    if (!keymap_ || typesASCII(active))
        return active;
    const xkb_layout_index_t count = xkb_keymap_num_layouts(keymap_.get());
    for (xkb_layout_index_t layout = 0; layout < count; ++layout) {
        if (typesASCII(layout))
            return layout;
    }
    return active;
}

bool XkbKeymap::typesASCII(std::uint32_t layout) const
{
    std::uint32_t letters = 0;
    for (std::uint32_t keyCode = 0; keyCode <= lastKeyCode; ++keyCode) {
        const char32_t character = characterOf(symbol(keyCode, layout));
        if (character >= U'a' && character <= U'z')
            letters |= 1U << (character - U'a');
    }
    constexpr std::uint32_t all = (1U << 26U) - 1;
    return letters == all;
}

std::uint32_t XkbKeymap::symbol(std::uint32_t keyCode, std::uint32_t layout) const
{
    const auto evdevCode = evdevKeyCode(keyCode);
    if (!keymap_ || !evdevCode)
        return XKB_KEY_NoSymbol;
    const xkb_keysym_t *symbols = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(keymap_.get(), *evdevCode + firstXKeyCode, layout, 0, &symbols);
    return count == 1 ? *symbols : XKB_KEY_NoSymbol;
}

} // namespace vantrel
