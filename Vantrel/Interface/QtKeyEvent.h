#pragma once

#include "KeyboardShortcuts/KeyEvent.h"

#include <QKeyEvent>

namespace vantrel {

/// What a key event of Qt says of the keyboard, whatever the layout makes of the key.
using KeyEventReader = KeyEvent (*)(const QKeyEvent &event);

/// For systems on which the native scan code is an X key code, Wayland included. The code of keys that come without
/// one, as from screen keyboards, or of modifier keys that the layout made something else, is told by what Qt makes of
/// them.
[[nodiscard]] KeyEvent keyEventByScanCode(const QKeyEvent &event);

} // namespace vantrel
