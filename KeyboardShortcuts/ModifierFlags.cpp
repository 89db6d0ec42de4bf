#include "KeyboardShortcuts/ModifierFlags.h"

#include <array>

namespace vantrel {
namespace {

struct Row {
    std::uint32_t appKit;
    std::uint32_t carbon;
};

constexpr std::array rows{
    Row{AppKitFlag::control, CarbonModifier::control},   Row{AppKitFlag::option, CarbonModifier::option},
    Row{AppKitFlag::shift, CarbonModifier::shift},       Row{AppKitFlag::command, CarbonModifier::command},
    Row{AppKitFlag::function, CarbonModifier::function},
};

} // namespace

std::uint32_t carbonModifiers(std::uint32_t appKitFlags) noexcept
{
    std::uint32_t modifiers = 0;
    for (const Row &row : rows) {
        if ((appKitFlags & row.appKit) != 0)
            modifiers |= row.carbon;
    }
    return modifiers;
}

std::uint32_t appKitFlags(qint64 carbonModifiers) noexcept
{
    std::uint32_t flags = 0;
    for (const Row &row : rows) {
        if ((carbonModifiers & row.carbon) != 0)
            flags |= row.appKit;
    }
    return flags;
}

std::uint32_t normalizedModifiers(qint64 carbonModifiers) noexcept
{
    return vantrel::carbonModifiers(appKitFlags(carbonModifiers));
}

} // namespace vantrel
