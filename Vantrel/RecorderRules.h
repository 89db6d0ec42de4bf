#pragma once

#include "KeyboardShortcuts/Shortcut.h"

namespace vantrel {

/// What a key that goes down means while a shortcut is being recorded.
struct RecorderAnswer {
    enum class Kind : std::uint8_t {
        /// Recording ends, and everything stays as it was.
        cancel,
        /// Recording ends, and the shortcut is taken away.
        remove,
        /// Recording ends with this shortcut.
        record,
        /// The key can't be recorded: recording goes on.
        refuse,
    };

    Kind kind = Kind::refuse;
    /// Only for `record`.
    std::optional<Shortcut> shortcut = {};
};

/// Every shortcut holds Control or Command. Escape and both Delete keys count only without modifiers; locks, the
/// keypad's flag and Function are no modifiers here.
[[nodiscard]] RecorderAnswer recorderAnswer(const KeyEvent &keyDown);

} // namespace vantrel
