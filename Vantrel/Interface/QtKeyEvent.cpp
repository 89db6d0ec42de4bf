#include "Vantrel/Interface/QtKeyEvent.h"

#include "KeyboardShortcuts/EvdevKeyCodes.h"
#include "KeyboardShortcuts/ModifierFlags.h"
#include "KeyboardShortcuts/SpecialKey.h"
#include "Vantrel/KeyEquivalent.h"

#include <array>

namespace vantrel {
namespace {

bool isModifierKey(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch: return true;
    // The layout's own switches, such as the one for the next language.
    default: return key >= Qt::Key_Multi_key && key <= Qt::Key_PreviousCandidate;
    }
}

/// From right Command to Fn.
bool isModifierKeyCode(std::uint32_t keyCode)
{
    return keyCode >= 0x36 && keyCode <= 0x3f;
}

std::optional<std::uint32_t> keyCodeByScanCode(std::uint32_t scanCode)
{
    return scanCode < firstXKeyCode ? std::nullopt : keyCodeOfEvdev(scanCode - firstXKeyCode);
}

std::optional<std::uint32_t> keyCodeByName(const QKeyEvent &event)
{
    const bool isOnKeypad = event.modifiers().testFlag(Qt::KeypadModifier);
    for (int number = 0; number < specialKeyCount; ++number) {
        const auto special = static_cast<SpecialKey>(number);
        const QKeyCombination named = keyCombination(special);
        if (named.key() == event.key() && named.keyboardModifiers().testFlag(Qt::KeypadModifier) == isOnKeypad)
            return keyCode(special);
    }
    return std::nullopt;
}

/// AppKit's flags; the bits below them tell the left keys from the right ones.
constexpr std::uint32_t deviceIndependentFlags = 0xffff'0000;

struct ModifierPair {
    Qt::KeyboardModifier modifier;
    std::uint32_t flag;
};

constexpr std::array modifierPairs{
    ModifierPair{Qt::ShiftModifier, AppKitFlag::shift},       ModifierPair{Qt::ControlModifier, AppKitFlag::control},
    ModifierPair{Qt::AltModifier, AppKitFlag::option},        ModifierPair{Qt::MetaModifier, AppKitFlag::command},
    ModifierPair{Qt::KeypadModifier, AppKitFlag::numericPad},
};

std::uint32_t modifierFlags(Qt::KeyboardModifiers modifiers)
{
    std::uint32_t flags = 0;
    for (const auto &[modifier, flag] : modifierPairs) {
        if (modifiers.testFlag(modifier))
            flags |= flag;
    }
    return flags;
}

KeyEvent::Type typeOf(const QKeyEvent &event)
{
    if (isModifierKey(event.key()))
        return KeyEvent::Type::flagsChanged;
    return event.type() == QEvent::KeyRelease ? KeyEvent::Type::keyUp : KeyEvent::Type::keyDown;
}

} // namespace

KeyEvent keyEventByScanCode(const QKeyEvent &event)
{
    KeyEvent result{.type = typeOf(event),
                    .keyCode = keyCodeByScanCode(event.nativeScanCode()),
                    .modifierFlags = modifierFlags(event.modifiers())};
    const bool isRemapped =
        result.type != KeyEvent::Type::flagsChanged && result.keyCode && isModifierKeyCode(*result.keyCode);
    if (event.nativeScanCode() == 0 || isRemapped)
        result.keyCode = keyCodeByName(event);
    return result;
}

KeyEvent keyEventByVirtualKey(const QKeyEvent &event)
{
    return {.type = typeOf(event),
            .keyCode = event.nativeVirtualKey(),
            .modifierFlags = event.nativeModifiers() & deviceIndependentFlags};
}

KeyEventReader keyEventReader(KeyNumber number)
{
    switch (number) {
    case KeyNumber::scanCode: return keyEventByScanCode;
    case KeyNumber::virtualKey: return keyEventByVirtualKey;
    }
    Q_UNREACHABLE();
}

} // namespace vantrel
