#pragma once

#include "KeyboardShortcuts/Shortcut.h"

#include <QString>

#include <optional>

namespace vantrel {

/// Names one place for a shortcut. Names are the same when their raw values are.
struct ShortcutName {
    QString rawValue;
    /// What the place starts with.
    std::optional<Shortcut> defaultShortcut = {};

    friend bool operator==(const ShortcutName &first, const ShortcutName &second)
    {
        return first.rawValue == second.rawValue;
    }
};

[[nodiscard]] inline size_t qHash(const ShortcutName &name, size_t seed = 0) noexcept
{
    return qHash(name.rawValue, seed);
}

} // namespace vantrel
