#include "KeyboardShortcuts/Shortcut.h"

#include "KeyboardShortcuts/ModifierFlags.h"
#include "Tests/Fakes/FakeKeyboardLayout.h"
#include "Tests/KeyboardShortcuts/Printing.h"

#include <QSet>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Type = KeyEvent::Type;

constexpr qint64 command = CarbonModifier::command;
constexpr qint64 shift = CarbonModifier::shift;
constexpr qint64 option = CarbonModifier::option;
constexpr qint64 control = CarbonModifier::control;
constexpr qint64 function = CarbonModifier::function;

QString described(qint64 keyCode, qint64 modifiers)
{
    return Shortcut{keyCode, modifiers}.description(test::FakeKeyboardLayout());
}

TEST(Shortcut, IsDescribedBySymbolsInAFixedOrder)
{
    EXPECT_EQ(described(96, command | shift | option | control), u"⌃⌥⇧⌘F5"_s);
    EXPECT_EQ(described(89, shift), u"⇧7\u20e3"_s);
    EXPECT_EQ(described(0, command), u"⌘A"_s);
    EXPECT_EQ(described(35, control | option), u"⌃⌥P"_s);
    EXPECT_EQ(described(18, 0), u"1"_s);
    EXPECT_EQ(described(49, control), u"⌃Space"_s);
}

TEST(Shortcut, FunctionStandsBehindCommand)
{
    EXPECT_EQ(described(0, function | command), u"⌘🌐\ufe0eA"_s);
}

TEST(Shortcut, AKeyThatTypesNothingIsAReplacementCharacter)
{
    EXPECT_EQ(described(127, command), u"⌘\ufffd"_s);
    EXPECT_EQ(described(-1, 0), u"\ufffd"_s);
    EXPECT_EQ(described(qint64{1} << 32, 0), u"\ufffd"_s);
}

TEST(Shortcut, TheLayoutsCharacterIsCapitalized)
{
    test::FakeKeyboardLayout layout;
    const auto typed = [&](const QString &character) {
        layout.set(0, character);
        return Shortcut{0, 0}.description(layout);
    };
    EXPECT_EQ(typed(u"q"_s), u"Q"_s);
    EXPECT_EQ(typed(u"ö"_s), u"Ö"_s);
    EXPECT_EQ(typed(u"ж"_s), u"Ж"_s);
    EXPECT_EQ(typed(u"ß"_s), u"Ss"_s);
    EXPECT_EQ(typed(u"\U00010428"_s), u"\U00010400"_s);
    EXPECT_EQ(typed(u"§"_s), u"§"_s);
    EXPECT_EQ(typed(QString()), u"\ufffd"_s);
}

TEST(Shortcut, ASpecialKeyIsNotAskedOfTheLayout)
{
    test::FakeKeyboardLayout layout;
    layout.set(36, u"x"_s);
    EXPECT_EQ((Shortcut{36, command}.description(layout)), u"⌘↩"_s);
}

TEST(Shortcut, ItsStoredFormIsAnObjectOfTwoNumbers)
{
    EXPECT_EQ((Shortcut{0, 4352}.json()), u"{\"carbonKeyCode\":0,\"carbonModifiers\":4352}"_s);
    for (const Shortcut &shortcut : {Shortcut{0, 4352}, Shortcut{-5, -1}, Shortcut{122, 0x21b00},
                                     Shortcut{std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min()}})
        EXPECT_EQ(Shortcut::fromJson(shortcut.json()), shortcut);
}

TEST(Shortcut, ItsStoredFormIsReadWhateverElseItHolds)
{
    const Shortcut expected{1, 256};
    for (const QString &text : {
             u"{\"carbonModifiers\":256,\"carbonKeyCode\":1}"_s,
             u" {\n\t\"carbonKeyCode\" : 1 , \"carbonModifiers\" : 256.0 }\n"_s,
             u"{\"carbonKeyCode\":1,\"carbonModifiers\":256,\"other\":[null,\"é\"]}"_s,
         })
        EXPECT_EQ(Shortcut::fromJson(text), expected) << text.toStdString();
}

TEST(Shortcut, AnyOtherTextIsNoShortcut)
{
    for (const QString &text : {
             QString(),
             u"false"_s,
             u"null"_s,
             u"1"_s,
             u"[]"_s,
             u"[1,256]"_s,
             u"{}"_s,
             u"{\"carbonKeyCode\":1}"_s,
             u"{\"carbonModifiers\":256}"_s,
             u"{\"carbonKeyCode\":1,\"carbonModifiers\":256"_s,
             u"{\"carbonKeyCode\":\"1\",\"carbonModifiers\":256}"_s,
             u"{\"carbonKeyCode\":1,\"carbonModifiers\":null}"_s,
             u"{\"carbonKeyCode\":true,\"carbonModifiers\":256}"_s,
             u"{\"carbonKeyCode\":1.5,\"carbonModifiers\":256}"_s,
             u"{\"carbonKeyCode\":1e300,\"carbonModifiers\":256}"_s,
             u"{\"CarbonKeyCode\":1,\"carbonModifiers\":256}"_s,
         })
        EXPECT_EQ(Shortcut::fromJson(text), std::nullopt) << text.toStdString();
}

TEST(Shortcut, AKeyGoingDownOrUpGivesOne)
{
    const std::uint32_t flags = AppKitFlag::command | AppKitFlag::control;
    EXPECT_EQ(Shortcut::fromEvent({Type::keyDown, 0, flags}), (Shortcut{0, command | control}));
    EXPECT_EQ(Shortcut::fromEvent({Type::keyUp, 12, AppKitFlag::shift}), (Shortcut{12, shift}));
    EXPECT_EQ(Shortcut::fromEvent({Type::flagsChanged, 0x3b, flags}), std::nullopt);
    EXPECT_EQ(Shortcut::fromEvent({Type::keyDown, std::nullopt, flags}), std::nullopt);
}

TEST(Shortcut, AnEventNeverGivesFunctionOrLocks)
{
    const std::uint32_t extra =
        AppKitFlag::function | AppKitFlag::capsLock | AppKitFlag::numericPad | AppKitFlag::help | 0x101;
    EXPECT_EQ(Shortcut::fromEvent({Type::keyDown, 96, AppKitFlag::control | extra}), (Shortcut{96, control}));
    EXPECT_EQ(Shortcut::fromEvent({Type::keyDown, 96, extra}), (Shortcut{96, 0}));
}

TEST(Shortcut, ItsPartsAreDerived)
{
    const Shortcut shortcut{122, command | function};
    EXPECT_EQ(shortcut.modifiers(), AppKitFlag::command | AppKitFlag::function);
    EXPECT_EQ(shortcut.key(), SpecialKey::f1);
    EXPECT_EQ((Shortcut{0, command}.key()), std::nullopt);
}

TEST(Shortcut, EqualOnesAreOneInASet)
{
    EXPECT_EQ((QSet<Shortcut>{{0, 256}, {0, 256}, {256, 0}, {0, 512}}.size()), 3);
}

} // namespace
} // namespace vantrel
