#include "Vantrel/KeyEquivalent.h"

#include "KeyboardShortcuts/ModifierFlags.h"

#include <QCoreApplication>

#include <array>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KeyEquivalent)
};

/// In the order of `SpecialKey`, up to the function keys.
constexpr std::array namedKeys{
    Qt::Key_Return,
    Qt::Key_Backspace,
    Qt::Key_Delete,
    Qt::Key_End,
    Qt::Key_Escape,
    // Where Macintosh keyboards had Help.
    Qt::Key_Insert,
    Qt::Key_Home,
    Qt::Key_Space,
    Qt::Key_Tab,
    Qt::Key_PageUp,
    Qt::Key_PageDown,
    Qt::Key_Up,
    Qt::Key_Right,
    Qt::Key_Down,
    Qt::Key_Left,
};

/// In the order of `SpecialKey`, from the keypad's digits on.
constexpr std::array keypadKeys{
    // Where Macintosh keyboards have Clear.
    Qt::Key_NumLock, Qt::Key_Period, Qt::Key_Slash,    Qt::Key_Enter,
    Qt::Key_Equal,   Qt::Key_Minus,  Qt::Key_Asterisk, Qt::Key_Plus,
};

int distance(SpecialKey first, SpecialKey key)
{
    return static_cast<int>(key) - static_cast<int>(first);
}

/// Qt's number of a key that types a character is the character's, capitalised.
QKeyCombination typedKey(const std::optional<QString> &character)
{
    const QList<uint> codePoints = character.value_or(QString()).toUcs4();
    if (codePoints.size() != 1)
        return static_cast<Qt::Key>(QChar::ReplacementCharacter);
    return static_cast<Qt::Key>(QChar::toUpper(codePoints.first()));
}

QKeyCombination namedKey(SpecialKey key, QtKeyNames names)
{
    if (names == QtKeyNames::macintosh && key == SpecialKey::help)
        return Qt::Key_Help;
    if (names == QtKeyNames::macintosh && key == SpecialKey::keypadClear)
        return Qt::KeypadModifier | Qt::Key_Clear;
    return keyCombination(key);
}

Qt::KeyboardModifiers keyboardModifiers(const Shortcut &shortcut, QtKeyNames names)
{
    const std::uint32_t flags = shortcut.modifiers();
    const bool isSwapped = names == QtKeyNames::macintosh;
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, (flags & AppKitFlag::shift) != 0);
    modifiers.setFlag(isSwapped ? Qt::MetaModifier : Qt::ControlModifier, (flags & AppKitFlag::control) != 0);
    modifiers.setFlag(Qt::AltModifier, (flags & AppKitFlag::option) != 0);
    modifiers.setFlag(isSwapped ? Qt::ControlModifier : Qt::MetaModifier, (flags & AppKitFlag::command) != 0);
    return modifiers;
}

/// Qt says Meta for Super.
QString textOf(QKeyCombination keys)
{
    const Qt::KeyboardModifiers modifiers = keys.keyboardModifiers();
    const Qt::KeyboardModifiers others = modifiers & ~Qt::KeyboardModifiers(Qt::MetaModifier);
    QString text = QKeySequence(QKeyCombination(others, keys.key())).toString(QKeySequence::NativeText);
    if (!modifiers.testFlag(Qt::MetaModifier))
        return text;
    //: The key between Ctrl and Alt, in a keyboard shortcut such as "Super+P".
    return Texts::tr("Super") + u'+' + text;
}

} // namespace

QKeyCombination keyCombination(SpecialKey key)
{
    if (key < SpecialKey::f1)
        return namedKeys.at(static_cast<std::size_t>(key));
    if (key < SpecialKey::keypad0)
        return static_cast<Qt::Key>(Qt::Key_F1 + distance(SpecialKey::f1, key));
    if (key < SpecialKey::keypadClear)
        return Qt::KeypadModifier | static_cast<Qt::Key>(Qt::Key_0 + distance(SpecialKey::keypad0, key));
    if (key == SpecialKey::keypadClear)
        return keypadKeys.front();
    return Qt::KeypadModifier | keypadKeys.at(static_cast<std::size_t>(distance(SpecialKey::keypadClear, key)));
}

QKeySequence keyEquivalent(const std::optional<Shortcut> &shortcut, const KeyboardLayout &layout, QtKeyNames names)
{
    if (!shortcut)
        return {};
    const auto special = shortcut->key();
    const QKeyCombination key = special ? namedKey(*special, names) : typedKey(shortcut->character(layout));
    return QKeyCombination(keyboardModifiers(*shortcut, names) | key.keyboardModifiers(), key.key());
}

QString keyText(const QKeySequence &sequence)
{
    QStringList texts;
    for (int index = 0; index < sequence.count(); ++index)
        texts.append(textOf(sequence[static_cast<uint>(index)]));
    return texts.join(", "_L1);
}

} // namespace vantrel
