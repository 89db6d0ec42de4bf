#include "Vantrel/KeyEquivalent.h"

#include "KeyboardShortcuts/ModifierFlags.h"
#include "Tests/Fakes/FakeKeyboardLayout.h"
#include "Tests/VantrelKit/Printing.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr qint64 command = CarbonModifier::command;
constexpr qint64 shift = CarbonModifier::shift;
constexpr qint64 option = CarbonModifier::option;
constexpr qint64 control = CarbonModifier::control;

QKeySequence equivalent(qint64 keyCode, qint64 modifiers, QtKeyNames names = QtKeyNames::pc)
{
    return keyEquivalent(Shortcut{keyCode, modifiers}, test::FakeKeyboardLayout(), names);
}

QString text(qint64 keyCode, qint64 modifiers)
{
    return keyText(equivalent(keyCode, modifiers));
}

TEST(KeyEquivalent, ReadsAsOnPCKeyboards)
{
    EXPECT_EQ(text(35, control | option), u"Ctrl+Alt+P"_s);
    EXPECT_EQ(text(0, command), u"Super+A"_s);
    EXPECT_EQ(text(96, command | shift | option | control), u"Super+Ctrl+Alt+Shift+F5"_s);
    EXPECT_EQ(text(49, control), u"Ctrl+Space"_s);
    EXPECT_EQ(text(51, control), u"Ctrl+Backspace"_s);
    EXPECT_EQ(text(117, control), u"Ctrl+Del"_s);
    EXPECT_EQ(text(114, control), u"Ctrl+Ins"_s);
    EXPECT_EQ(text(90, control), u"Ctrl+F20"_s);
    EXPECT_EQ(text(89, shift), u"Shift+Num+7"_s);
    EXPECT_EQ(text(76, control), u"Ctrl+Num+Enter"_s);
    EXPECT_EQ(text(71, control), u"Ctrl+NumLock"_s);
}

TEST(KeyEquivalent, IsWhatQtTakesForTheKeys)
{
    EXPECT_EQ(equivalent(35, control | option), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_P));
    EXPECT_EQ(equivalent(0, command | shift), QKeySequence(Qt::META | Qt::SHIFT | Qt::Key_A));
    EXPECT_EQ(equivalent(126, control), QKeySequence(Qt::CTRL | Qt::Key_Up));
    EXPECT_EQ(equivalent(82, control),
              QKeySequence(QKeyCombination(Qt::ControlModifier | Qt::KeypadModifier, Qt::Key_0)));
}

TEST(KeyEquivalent, WhereQtCallsCommandControlTheKeysAreTheOnesThatWerePressed)
{
    const auto sequence = [](qint64 keyCode, qint64 modifiers) {
        return equivalent(keyCode, modifiers, QtKeyNames::macintosh);
    };
    EXPECT_EQ(sequence(35, control | option), QKeySequence(Qt::META | Qt::ALT | Qt::Key_P));
    EXPECT_EQ(sequence(35, command), QKeySequence(Qt::CTRL | Qt::Key_P));
    EXPECT_EQ(sequence(96, command | shift | option | control),
              QKeySequence(Qt::META | Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_F5));
    EXPECT_EQ(sequence(51, control), QKeySequence(Qt::META | Qt::Key_Backspace));
    // Keys that PC keyboards don't have.
    EXPECT_EQ(sequence(114, control), QKeySequence(Qt::META | Qt::Key_Help));
    EXPECT_EQ(sequence(71, control),
              QKeySequence(QKeyCombination(Qt::MetaModifier | Qt::KeypadModifier, Qt::Key_Clear)));
}

TEST(KeyEquivalent, FollowsTheLayout)
{
    test::FakeKeyboardLayout layout;
    const auto typed = [&](const QString &character) {
        layout.set(0, character);
        return keyText(keyEquivalent(Shortcut{0, control}, layout, QtKeyNames::pc));
    };
    EXPECT_EQ(typed(u"q"_s), u"Ctrl+Q"_s);
    EXPECT_EQ(typed(u"ж"_s), u"Ctrl+Ж"_s);
    EXPECT_EQ(typed(u"ß"_s), u"Ctrl+ß"_s);
    EXPECT_EQ(typed(u"+"_s), u"Ctrl++"_s);
    EXPECT_EQ(typed(QString()), u"Ctrl+\ufffd"_s);
    EXPECT_EQ(text(127, control), u"Ctrl+\ufffd"_s);
    EXPECT_EQ(text(-1, control), u"Ctrl+\ufffd"_s);
}

TEST(KeyEquivalent, WithoutAShortcutThereIsNone)
{
    EXPECT_TRUE(keyEquivalent(std::nullopt, test::FakeKeyboardLayout(), QtKeyNames::pc).isEmpty());
    EXPECT_EQ(keyText({}), QString());
}

TEST(KeyEquivalent, EverySpecialKeyHasATextOfItsOwn)
{
    QSet<QString> texts;
    for (int number = 0; number < specialKeyCount; ++number) {
        const auto key = static_cast<SpecialKey>(number);
        const QString name = text(keyCode(key), 0);
        EXPECT_FALSE(name.isEmpty()) << number;
        EXPECT_FALSE(name.contains(QChar::ReplacementCharacter)) << number;
        texts.insert(name);
    }
    EXPECT_EQ(texts.size(), specialKeyCount);
}

} // namespace
} // namespace vantrel
