#pragma once

#include "KeyboardShortcuts/Linux/XkbKeymap.h"

namespace vantrel {

/// A combination as the portal's preferred_trigger, in the grammar of the XDG shortcuts specification: "CTRL+ALT+p".
/// Key code and modifiers are Carbon's. Null for keys that the keyboard doesn't have.
[[nodiscard]] std::optional<QString> portalTrigger(const XkbKeymap &keymap, std::uint32_t keyCode,
                                                   std::uint32_t modifiers);

} // namespace vantrel
