#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace vantrel {

/// The user's current keyboard layout, of several the one that types ASCII. Main thread only.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;
    Q_DISABLE_COPY_MOVE(KeyboardLayout)

    /// What the key types without modifiers, as the layout has it (not capitalised); null for keys that type nothing,
    /// more than one character, or an accent for the next key. The code is a virtual key code of the Macintosh keyboard
    /// (kVK).
    [[nodiscard]] virtual std::optional<QString> character(std::uint32_t keyCode) const = 0;

    /// Calls back whenever characters may have changed; takes the place of the function there was.
    virtual void onChange(std::function<void()> changed) = 0;

protected:
    KeyboardLayout() = default;
};

} // namespace vantrel
