#include "KeyboardShortcuts/Portal/PortalTrigger.h"

#include "KeyboardShortcuts/ModifierFlags.h"

using namespace Qt::StringLiterals;

namespace vantrel {

std::optional<QString> portalTrigger(const XkbKeymap &keymap, std::uint32_t keyCode, std::uint32_t modifiers)
{
    const auto symbol = keymap.symbolName(keyCode, 0);
    if (!symbol)
        return std::nullopt;
    QString trigger;
    if ((modifiers & CarbonModifier::control) != 0)
        trigger += "CTRL+"_L1;
    if ((modifiers & CarbonModifier::option) != 0)
        trigger += "ALT+"_L1;
    if ((modifiers & CarbonModifier::shift) != 0)
        trigger += "SHIFT+"_L1;
    if ((modifiers & CarbonModifier::command) != 0)
        trigger += "LOGO+"_L1;
    return trigger + *symbol;
}

} // namespace vantrel
