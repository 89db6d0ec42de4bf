#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <optional>

struct xkb_context;
struct xkb_keymap;

namespace vantrel {

struct XkbDeleter {
    void operator()(xkb_context *context) const;
    void operator()(xkb_keymap *keymap) const;
};

/// What the keys of a keyboard type. Key codes are those of the Macintosh keyboard (kVK), layouts are counted from 0.
class XkbKeymap {
public:
    using Context = std::unique_ptr<xkb_context, XkbDeleter>;
    using Keymap = std::unique_ptr<xkb_keymap, XkbDeleter>;

    /// Without a keymap no key types anything.
    explicit XkbKeymap(Keymap keymap = {}) : keymap_(std::move(keymap)) {}

    /// Null when the library finds none of its files.
    [[nodiscard]] static Context makeContext();
    /// Where the desktop doesn't say what the user's is: the system's default, which the environment can change.
    [[nodiscard]] static XkbKeymap makeDefault();

    /// The one character that a key types without modifiers; null for dead keys and those that type none.
    [[nodiscard]] std::optional<QString> character(std::uint32_t keyCode, std::uint32_t layout) const;

    /// The library's name of what a key types without modifiers, such as "a" or "XF86Tools".
    [[nodiscard]] std::optional<QString> symbolName(std::uint32_t keyCode, std::uint32_t layout) const;

    /// A layout in which all letters of ASCII can be typed without modifiers: `active` or else the first. `active` when
    /// there is none.
    [[nodiscard]] std::uint32_t asciiLayout(std::uint32_t active) const;

private:
    [[nodiscard]] bool typesASCII(std::uint32_t layout) const;
    /// What a key gives without modifiers: 0 when it gives nothing or several symbols at once.
    [[nodiscard]] std::uint32_t symbol(std::uint32_t keyCode, std::uint32_t layout) const;

    Keymap keymap_;
};

} // namespace vantrel
