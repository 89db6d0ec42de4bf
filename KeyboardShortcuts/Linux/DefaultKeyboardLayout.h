#pragma once

#include "KeyboardShortcuts/KeyboardLayout.h"
#include "KeyboardShortcuts/Linux/XkbKeymap.h"

namespace vantrel {

/// The system's layout, where the desktop doesn't tell programs which one the user has chosen. It never changes.
class DefaultKeyboardLayout final : public KeyboardLayout {
public:
    DefaultKeyboardLayout() : keymap_(XkbKeymap::makeDefault()), layout_(keymap_.asciiLayout(0)) {}

    [[nodiscard]] std::optional<QString> character(std::uint32_t keyCode) const override
    {
        return keymap_.character(keyCode, layout_);
    }
    void onChange(std::function<void()> /*changed*/) override {}

private:
    XkbKeymap keymap_;
    std::uint32_t layout_;
};

} // namespace vantrel
