#include "KeyboardShortcuts/SpecialKey.h"

#include <QCoreApplication>
#include <QHash>

#include <array>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KeyboardShortcuts)
};

struct Row {
    SpecialKey key;
    std::uint32_t code;
    /// Empty for the space bar, whose name is translated.
    QStringView text;
};

using Key = SpecialKey;

// In the order of the enumeration.
constexpr std::array<Row, specialKeyCount> rows{{
    {Key::returnKey, 36, u"↩"},
    {Key::deleteKey, 51, u"⌫"},
    {Key::deleteForward, 117, u"⌦"},
    {Key::end, 119, u"↘"},
    {Key::escape, 53, u"⎋"},
    {Key::help, 114, u"?\u20dd"},
    {Key::home, 115, u"↖"},
    {Key::space, 49, u""},
    {Key::tab, 48, u"⇥"},
    {Key::pageUp, 116, u"⇞"},
    {Key::pageDown, 121, u"⇟"},
    {Key::upArrow, 126, u"↑"},
    {Key::rightArrow, 124, u"→"},
    {Key::downArrow, 125, u"↓"},
    {Key::leftArrow, 123, u"←"},
    {Key::f1, 122, u"F1"},
    {Key::f2, 120, u"F2"},
    {Key::f3, 99, u"F3"},
    {Key::f4, 118, u"F4"},
    {Key::f5, 96, u"F5"},
    {Key::f6, 97, u"F6"},
    {Key::f7, 98, u"F7"},
    {Key::f8, 100, u"F8"},
    {Key::f9, 101, u"F9"},
    {Key::f10, 109, u"F10"},
    {Key::f11, 103, u"F11"},
    {Key::f12, 111, u"F12"},
    {Key::f13, 105, u"F13"},
    {Key::f14, 107, u"F14"},
    {Key::f15, 113, u"F15"},
    {Key::f16, 106, u"F16"},
    {Key::f17, 64, u"F17"},
    {Key::f18, 79, u"F18"},
    {Key::f19, 80, u"F19"},
    {Key::f20, 90, u"F20"},
    {Key::keypad0, 82, u"0\u20e3"},
    {Key::keypad1, 83, u"1\u20e3"},
    {Key::keypad2, 84, u"2\u20e3"},
    {Key::keypad3, 85, u"3\u20e3"},
    {Key::keypad4, 86, u"4\u20e3"},
    {Key::keypad5, 87, u"5\u20e3"},
    {Key::keypad6, 88, u"6\u20e3"},
    {Key::keypad7, 89, u"7\u20e3"},
    {Key::keypad8, 91, u"8\u20e3"},
    {Key::keypad9, 92, u"9\u20e3"},
    {Key::keypadClear, 71, u"☒\u20e3"},
    {Key::keypadDecimal, 65, u".\u20e3"},
    {Key::keypadDivide, 75, u"/\u20e3"},
    {Key::keypadEnter, 76, u"↩\u20e3"},
    {Key::keypadEquals, 81, u"=\u20e3"},
    {Key::keypadMinus, 78, u"-\u20e3"},
    {Key::keypadMultiply, 67, u"*\u20e3"},
    {Key::keypadPlus, 69, u"+\u20e3"},
}};

const Row &rowOf(SpecialKey key)
{
    return rows.at(static_cast<std::size_t>(key));
}

QHash<qint64, SpecialKey> keysByCode()
{
    QHash<qint64, SpecialKey> keys;
    keys.reserve(specialKeyCount);
    for (const Row &row : rows)
        keys.insert(row.code, row.key);
    return keys;
}

} // namespace

std::optional<SpecialKey> specialKey(qint64 keyCode)
{
    static const QHash<qint64, SpecialKey> keys = keysByCode();
    const auto found = keys.constFind(keyCode);
    return found == keys.constEnd() ? std::nullopt : std::optional(*found);
}

std::uint32_t keyCode(SpecialKey key)
{
    return rowOf(key).code;
}

QString presentableText(SpecialKey key)
{
    if (key == SpecialKey::space) {
        //: Names the space bar in a keyboard shortcut, as in "⌃Space".
        return Texts::tr("Space", "space_key");
    }
    return rowOf(key).text.toString();
}

} // namespace vantrel
