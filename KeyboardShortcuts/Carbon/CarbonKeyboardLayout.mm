#include "KeyboardShortcuts/Carbon/CarbonKeyboardLayout.h"

#include "KeyboardShortcuts/Carbon/TypedCharacter.h"

#include <Carbon/Carbon.h>

#include <array>
#include <memory>
#include <type_traits>

namespace vantrel {
namespace {

/// No key code of the Macintosh keyboard is larger.
constexpr std::uint32_t lastKeyCode = 0x7f;

struct Release {
    void operator()(CFTypeRef object) const { CFRelease(object); }
};
using OwnedInputSource = std::unique_ptr<std::remove_pointer_t<TISInputSourceRef>, Release>;

} // namespace

CarbonKeyboardLayout::~CarbonKeyboardLayout()
{
    if (isObserving_)
        CFNotificationCenterRemoveEveryObserver(CFNotificationCenterGetDistributedCenter(), this);
}

std::optional<QString> CarbonKeyboardLayout::character(std::uint32_t keyCode) const
{
    const OwnedInputSource source(TISCopyCurrentASCIICapableKeyboardLayoutInputSource());
    if (!source || keyCode > lastKeyCode)
        return std::nullopt;
    // Belongs to the source.
    const auto *const data =
        static_cast<CFDataRef>(TISGetInputSourceProperty(source.get(), kTISPropertyUnicodeKeyLayoutData));
    if (data == nullptr)
        return std::nullopt;
    const auto *const layout = reinterpret_cast<const UCKeyboardLayout *>(CFDataGetBytePtr(data));
    std::array<UniChar, 4> typed{};
    UniCharCount length = 0;
    UInt32 deadKeyState = 0;
    // Without options a key for an accent only changes the state, and types nothing.
    const OSStatus status = UCKeyTranslate(layout, static_cast<UInt16>(keyCode), kUCKeyActionDisplay, 0, LMGetKbdType(),
                                           0, &deadKeyState, typed.size(), &length, typed.data());
    if (status != noErr || length > typed.size())
        return std::nullopt;
    return typedCharacter(QStringView(typed.data(), static_cast<qsizetype>(length)));
}

void CarbonKeyboardLayout::onChange(std::function<void()> changed)
{
    changed_ = std::move(changed);
    if (std::exchange(isObserving_, true))
        return;
    // At once: a program that only has a symbol in the menu bar is hardly ever the active one, and would otherwise be
    // told when it becomes that.
    CFNotificationCenterAddObserver(
        CFNotificationCenterGetDistributedCenter(), this,
        [](CFNotificationCenterRef, void *layout, CFNotificationName, const void *, CFDictionaryRef) {
            static_cast<const CarbonKeyboardLayout *>(layout)->tellChange();
        },
        kTISNotifySelectedKeyboardInputSourceChanged, nullptr, CFNotificationSuspensionBehaviorDeliverImmediately);
}

void CarbonKeyboardLayout::tellChange() const
{
    if (changed_)
        changed_();
}

} // namespace vantrel
