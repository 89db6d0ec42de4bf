#pragma once

#include "KeyboardShortcuts/Shortcut.h"
#include "Platform/SystemConventions.h"

#include <QKeySequence>

namespace vantrel {

/// The key on a PC keyboard, those of the keypad with `Qt::KeypadModifier`.
[[nodiscard]] QKeyCombination keyCombination(SpecialKey key);

/// A shortcut as menus take it: Option is Alt, Delete is Backspace; on PC keyboards Command is Super. Empty without a
/// shortcut. Qt has no name for Function.
[[nodiscard]] QKeySequence keyEquivalent(const std::optional<Shortcut> &shortcut, const KeyboardLayout &layout,
                                         QtKeyNames names);

/// The keys as people read them on desktops with PC keyboards: "Ctrl+Alt+P", "Super+F5".
[[nodiscard]] QString keyText(const QKeySequence &sequence);

} // namespace vantrel
