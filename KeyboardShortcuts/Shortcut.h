#pragma once

#include "KeyboardShortcuts/KeyEvent.h"
#include "KeyboardShortcuts/KeyboardLayout.h"
#include "KeyboardShortcuts/SpecialKey.h"

#include <QHash>
#include <QString>

#include <optional>

namespace vantrel {

/// A key with the modifiers that are held with it, in the numbers of the Macintosh keyboard on every system.
struct Shortcut {
    /// A virtual key code (kVK).
    qint64 carbonKeyCode = 0;
    /// A mask of `CarbonModifier`.
    qint64 carbonModifiers = 0;

    /// Only a key that goes down or up gives a shortcut. It never holds Function, which keyboards report by themselves
    /// for some keys.
    [[nodiscard]] static std::optional<Shortcut> fromEvent(const KeyEvent &event);

    /// Reads the stored form; none for any other text.
    [[nodiscard]] static std::optional<Shortcut> fromJson(const QString &text);
    /// The stored form: an object with the two numbers as `carbonKeyCode` and `carbonModifiers`.
    [[nodiscard]] QString json() const;

    /// The modifiers as AppKit's flags.
    [[nodiscard]] std::uint32_t modifiers() const;
    [[nodiscard]] std::optional<SpecialKey> key() const;

    /// What the key types on the layout; none for a key that types nothing.
    [[nodiscard]] std::optional<QString> character(const KeyboardLayout &layout) const;
    /// The shortcut in symbols, as in "⌃⌥P", with U+FFFD for a key that types nothing.
    [[nodiscard]] QString description(const KeyboardLayout &layout) const;

    friend bool operator==(const Shortcut &, const Shortcut &) = default;
};

[[nodiscard]] inline size_t qHash(const Shortcut &shortcut, size_t seed = 0) noexcept
{
    return qHashMulti(seed, shortcut.carbonKeyCode, shortcut.carbonModifiers);
}

} // namespace vantrel
