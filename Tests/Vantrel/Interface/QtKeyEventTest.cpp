#include "Vantrel/Interface/QtKeyEvent.h"

#include "KeyboardShortcuts/ModifierFlags.h"
#include "Vantrel/KeyEquivalent.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using Type = KeyEvent::Type;

KeyEvent read(quint32 scanCode, int key, Qt::KeyboardModifiers modifiers = {}, QEvent::Type type = QEvent::KeyPress)
{
    return keyEventByScanCode(QKeyEvent(type, key, modifiers, scanCode, 0, 0));
}

TEST(QtKeyEvent, AKeyIsKnownByItsPlaceWhateverTheLayoutTypes)
{
    // The key of A: on a French keyboard it types q, on a Russian one ф.
    for (const int key : {static_cast<int>(Qt::Key_A), static_cast<int>(Qt::Key_Q), 0x0424})
        EXPECT_EQ(read(38, key).keyCode, 0U) << key;
    // F13 to F20, for which some layouts have other names.
    const std::uint32_t functionKeys[] = {105, 107, 113, 106, 64, 79, 80, 90};
    for (quint32 number = 0; number < 8; ++number)
        EXPECT_EQ(read(191 + number, Qt::Key_Launch5).keyCode, functionKeys[number]) << number;
}

TEST(QtKeyEvent, ModifiersAreThoseOfThePCKeyboard)
{
    EXPECT_EQ(read(38, Qt::Key_A).modifierFlags, 0U);
    EXPECT_EQ(read(38, Qt::Key_A, Qt::ControlModifier).modifierFlags, AppKitFlag::control);
    EXPECT_EQ(read(38, Qt::Key_A, Qt::AltModifier).modifierFlags, AppKitFlag::option);
    EXPECT_EQ(read(38, Qt::Key_A, Qt::ShiftModifier).modifierFlags, AppKitFlag::shift);
    EXPECT_EQ(read(38, Qt::Key_A, Qt::MetaModifier).modifierFlags, AppKitFlag::command);
    EXPECT_EQ(read(79, Qt::Key_7, Qt::KeypadModifier).modifierFlags, AppKitFlag::numericPad);
    EXPECT_EQ(read(38, Qt::Key_A, Qt::GroupSwitchModifier).modifierFlags, 0U);
}

TEST(QtKeyEvent, ModifierKeysOnlyChangeFlags)
{
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_AltGr, Qt::Key_Super_L,
                              Qt::Key_CapsLock, Qt::Key_ScrollLock, Qt::Key_Mode_switch, Qt::Key_Multi_key})
        EXPECT_EQ(read(50, key).type, Type::flagsChanged) << key;
    EXPECT_EQ(read(38, Qt::Key_A).type, Type::keyDown);
    EXPECT_EQ(read(38, Qt::Key_A, {}, QEvent::KeyRelease).type, Type::keyUp);
    EXPECT_EQ(read(77, Qt::Key_NumLock).type, Type::keyDown);
}

TEST(QtKeyEvent, AModifierKeyThatIsAnotherKeyNowIsThatKey)
{
    // Caps Lock as Escape.
    EXPECT_EQ(read(66, Qt::Key_Escape).keyCode, 53U);
    EXPECT_EQ(read(66, Qt::Key_Escape).type, Type::keyDown);
    EXPECT_EQ(read(66, Qt::Key_Control).type, Type::flagsChanged);
}

TEST(QtKeyEvent, WithoutAScanCodeTheNameCounts)
{
    EXPECT_EQ(read(0, Qt::Key_Escape).keyCode, 53U);
    EXPECT_EQ(read(0, Qt::Key_F5).keyCode, 96U);
    EXPECT_EQ(read(0, Qt::Key_Delete).keyCode, 117U);
    EXPECT_EQ(read(0, Qt::Key_Enter, Qt::KeypadModifier).keyCode, 76U);
    EXPECT_EQ(read(0, Qt::Key_7, Qt::KeypadModifier).keyCode, 89U);
    EXPECT_EQ(read(0, Qt::Key_7).keyCode, std::nullopt);
    EXPECT_EQ(read(0, Qt::Key_A).keyCode, std::nullopt);
}

TEST(QtKeyEvent, KeysThatMacintoshKeyboardsDoNotHaveHaveNoCode)
{
    EXPECT_EQ(read(127, Qt::Key_Pause).keyCode, std::nullopt);
    EXPECT_EQ(read(7, Qt::Key_A).keyCode, std::nullopt);
}

KeyEvent readVirtual(quint32 virtualKey, quint32 nativeModifiers, int key, Qt::KeyboardModifiers modifiers = {},
                     QEvent::Type type = QEvent::KeyPress)
{
    return keyEventByVirtualKey(QKeyEvent(type, key, modifiers, 0, virtualKey, nativeModifiers));
}

TEST(QtKeyEvent, AVirtualKeyIsTheCodeAndZeroIsTheKeyOfA)
{
    EXPECT_EQ(readVirtual(0, 0, Qt::Key_A).keyCode, 0U);
    EXPECT_EQ(readVirtual(0, 0, Qt::Key_Q).keyCode, 0U);
    EXPECT_EQ(readVirtual(35, 0, Qt::Key_P).keyCode, 35U);
    EXPECT_EQ(readVirtual(53, 0, Qt::Key_Escape).keyCode, 53U);
    EXPECT_EQ(readVirtual(114, 0, Qt::Key_Help).keyCode, 114U);
}

TEST(QtKeyEvent, BesideAVirtualKeyTheNativeModifiersCount)
{
    // As Qt has it on macOS, Control is Meta and Command is Control.
    const KeyEvent event =
        readVirtual(35, AppKitFlag::control | AppKitFlag::option, Qt::Key_P, Qt::MetaModifier | Qt::AltModifier);
    EXPECT_EQ(event.modifierFlags, AppKitFlag::control | AppKitFlag::option);
    EXPECT_EQ(readVirtual(35, AppKitFlag::command, Qt::Key_P, Qt::ControlModifier).modifierFlags, AppKitFlag::command);
    EXPECT_EQ(readVirtual(96, AppKitFlag::function, Qt::Key_F5).modifierFlags, AppKitFlag::function);
    // The low bits say which of two keys it is.
    EXPECT_EQ(readVirtual(35, AppKitFlag::control | 0x2101, Qt::Key_P).modifierFlags, AppKitFlag::control);
}

TEST(QtKeyEvent, ModifierKeysOnlyChangeFlagsWhateverTheirVirtualKey)
{
    // Qt hands them on without one.
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_CapsLock})
        EXPECT_EQ(readVirtual(0, AppKitFlag::shift, key).type, Type::flagsChanged) << key;
    EXPECT_EQ(readVirtual(0, 0, Qt::Key_A).type, Type::keyDown);
    EXPECT_EQ(readVirtual(0, 0, Qt::Key_A, {}, QEvent::KeyRelease).type, Type::keyUp);
}

TEST(QtKeyEvent, TheReaderIsThatOfTheKeyboardsNumber)
{
    // The same numbers are P by its scan code, and F16 by its virtual key.
    const QKeyEvent event(QEvent::KeyPress, Qt::Key_P, Qt::ControlModifier, 33, 106, AppKitFlag::command);
    EXPECT_EQ(keyEventReader(KeyNumber::scanCode)(event).keyCode, 35U);
    EXPECT_EQ(keyEventReader(KeyNumber::scanCode)(event).modifierFlags, AppKitFlag::control);
    EXPECT_EQ(keyEventReader(KeyNumber::virtualKey)(event).keyCode, 106U);
    EXPECT_EQ(keyEventReader(KeyNumber::virtualKey)(event).modifierFlags, AppKitFlag::command);
}

} // namespace
} // namespace vantrel
