#pragma once

#include <QString>

#include <cstdint>

namespace vantrel {

/// What Qt calls the keys of this system's keyboards.
enum class QtKeyNames : std::uint8_t {
    /// Each as it is called on a PC keyboard; Super is Meta.
    pc,
    /// Command is Control and Control is Meta, as Qt has it unless it is told not to swap the two. It is not told so:
    /// whatever is written with Control, in the program's menus and in Qt's own text fields and dialogs, is then the
    /// Command key that the user expects. Only shortcuts that the user has recorded name the keys that were pressed.
    macintosh,
};

/// How things are said on this system.
struct SystemConventions {
    /// The command that opens a link, for scripts.
    QString linkCommand;
    /// People read shortcuts as signs, "⌃⌥P", not as "Ctrl+Alt+P".
    bool showsKeySigns = false;
    QtKeyNames qtKeyNames = QtKeyNames::pc;
};

} // namespace vantrel
