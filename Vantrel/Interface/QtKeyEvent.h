#pragma once

#include "KeyboardShortcuts/DesktopKeyboard.h"
#include "KeyboardShortcuts/KeyEvent.h"

#include <QKeyEvent>

namespace vantrel {

/// What a key event of Qt says of the keyboard, whatever the layout makes of the key.
using KeyEventReader = KeyEvent (*)(const QKeyEvent &event);

/// For systems on which the native scan code is an X key code, Wayland included. The code of keys that come without
/// one, as from screen keyboards, or of modifier keys that the layout made something else, is told by what Qt makes of
/// them.
[[nodiscard]] KeyEvent keyEventByScanCode(const QKeyEvent &event);

/// For systems on which the native virtual key is the key's code and the native modifiers are AppKit's: what Qt makes
/// of either doesn't count. Zero is the key of A.
[[nodiscard]] KeyEvent keyEventByVirtualKey(const QKeyEvent &event);

/// The one that reads the number.
[[nodiscard]] KeyEventReader keyEventReader(KeyNumber number);

} // namespace vantrel
