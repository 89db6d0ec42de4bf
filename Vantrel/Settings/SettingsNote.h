#pragma once

#include <QString>

#include <cstdint>

namespace vantrel {

/// A line that explains something, with a symbol before it.
struct SettingsNote {
    /// What a button beside the line does.
    enum class Action : std::uint8_t {
        none,
        grantAccess,
        /// Reads the browser's profiles once more.
        tryAgain,
    };

    /// The symbol's name.
    QString symbol;
    QString text;
    Action action = Action::none;

    friend bool operator==(const SettingsNote &, const SettingsNote &) = default;
};

/// What stands on the button; empty without one.
[[nodiscard]] QString actionTitle(SettingsNote::Action action);

} // namespace vantrel
