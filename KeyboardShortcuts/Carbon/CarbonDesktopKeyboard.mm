#include "KeyboardShortcuts/Carbon/CarbonHotKeys.h"
#include "KeyboardShortcuts/Carbon/CarbonKeyboardLayout.h"
#include "KeyboardShortcuts/DesktopKeyboard.h"

namespace vantrel {

DesktopKeyboard DesktopKeyboard::create(ActivationSource & /*source*/, HotKeyDescription /*description*/)
{
    return {.hotKeys = std::make_unique<CarbonHotKeys>(),
            .layout = std::make_unique<CarbonKeyboardLayout>(),
            .keyNumber = KeyNumber::virtualKey};
}

} // namespace vantrel
