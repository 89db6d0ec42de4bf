#include "Vantrel/RecorderRules.h"

#include "KeyboardShortcuts/ModifierFlags.h"

namespace vantrel {
namespace {

using Kind = RecorderAnswer::Kind;

/// Everything that makes a key more than itself: Shift, Control, Option, Command, Help, and the bits that have no
/// meaning yet.
constexpr std::uint32_t countedFlags = 0xff5e'0000;
constexpr std::uint32_t neededFlags = AppKitFlag::control | AppKitFlag::command;

Kind answerToPlainKey(const KeyEvent &keyDown)
{
    const auto special = keyDown.keyCode ? specialKey(*keyDown.keyCode) : std::nullopt;
    if (special == SpecialKey::escape)
        return Kind::cancel;
    if (special == SpecialKey::deleteKey || special == SpecialKey::deleteForward)
        return Kind::remove;
    return Kind::refuse;
}

} // namespace

RecorderAnswer recorderAnswer(const KeyEvent &keyDown)
{
    if ((keyDown.modifierFlags & countedFlags) == 0)
        return {.kind = answerToPlainKey(keyDown)};
    if ((keyDown.modifierFlags & neededFlags) == 0)
        return {.kind = Kind::refuse};
    const auto shortcut = Shortcut::fromEvent(keyDown);
    return {.kind = shortcut ? Kind::record : Kind::refuse, .shortcut = shortcut};
}

} // namespace vantrel
