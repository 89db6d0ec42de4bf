#include "KeyboardShortcuts/X11/X11HotKeys.h"

#include "Tests/KeyboardShortcuts/X11/AnotherProgram.h"
#include "Tests/KeyboardShortcuts/X11/HotKeysFixture.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::AnotherProgram, test::keyA, test::keyF20, test::keyP, test::keyY, test::command, test::control,
    test::option, test::shift;

constexpr int badAccess = 10;
constexpr int badValue = 2;

constexpr std::uint8_t xKeyA = 38;

class X11HotKeysTest : public test::HotKeysFixture {
protected:
    const QStringList once_{u"press 1"_s, u"release 1"_s};
};

TEST_F(X11HotKeysTest, AKeyIsHeardOncePressedAndOnceReleased)
{
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyA, control | option);
    add(2, keyP, command | shift);
    add(3, keyP, 0);
    type("key", "ctrl+alt+a");
    EXPECT_EQ(heard(), once_);
    type("key", "super+shift+p");
    EXPECT_EQ(heard(), QStringList({u"press 2"_s, u"release 2"_s}));
    type("key", "p");
    EXPECT_EQ(heard(), QStringList({u"press 3"_s, u"release 3"_s}));
}

TEST_F(X11HotKeysTest, OtherModifiersAreOtherCombinations)
{
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyA, control | option);
    for (const char *keys : {"a", "ctrl+a", "alt+a", "ctrl+alt+shift+a", "ctrl+alt+super+a", "ctrl+alt+p"})
        type("key", keys);
    EXPECT_EQ(heard(), QStringList());
}

TEST_F(X11HotKeysTest, HoweverLongItIsHeldItIsOnePressAndOneRelease)
{
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyA, control | option);
    const test::KeyEventCounter counter;
    type("keydown", "ctrl+alt+a");
    ASSERT_TRUE(eventually([&] { return counter.presses() > 5; })) << "The server repeats the key.";
    type("keyup", "ctrl+alt+a");
    EXPECT_EQ(heard(), once_);
    type("key", "ctrl+alt+a");
    EXPECT_EQ(heard(), once_);
}

TEST_F(X11HotKeysTest, ModifiersMayBeLetGoFirst)
{
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyA, control | option);
    type("keydown", "ctrl+alt+a");
    type("keyup", "ctrl");
    type("keyup", "alt");
    EXPECT_EQ(heard(), QStringList(u"press 1"_s));
    type("keyup", "a");
    EXPECT_EQ(heard(), QStringList(u"release 1"_s));
}

TEST_F(X11HotKeysTest, WhicheverLocksAreOnItIsHeard)
{
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyA, control | option);
    for (const char *lock : {"Caps_Lock", "Num_Lock", "Caps_Lock", "Num_Lock"}) {
        type("key", lock);
        type("key", "ctrl+alt+a");
        EXPECT_EQ(heard(), once_) << lock;
    }
}

TEST_F(X11HotKeysTest, KeysWithoutANameAreHeardByTheirCode)
{
    listen(HotKeyPort::Listening::hotKeys);
    const std::vector<std::uint32_t> keyCodes{0x69, 0x6b, 0x71, 0x6a, 0x40, 0x4f, 0x50, 0x5a};
    QStringList expected;
    for (std::uint32_t number = 0; number < keyCodes.size(); ++number) {
        add(13 + number, keyCodes[number], 0);
        server_.type(u"key"_s, QString::number(191 + number));
        expected += {u"press %1"_s.arg(13 + number), u"release %1"_s.arg(13 + number)};
    }
    EXPECT_EQ(heard(), expected);
}

TEST_F(X11HotKeysTest, ACombinationOfAnotherProgramIsRefusedWhicheverLocksItHasItWith)
{
    listen(HotKeyPort::Listening::hotKeys);
    constexpr std::uint16_t controlAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
    for (const int locks : {0, XCB_MOD_MASK_LOCK + 0, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2}) {
        {
            AnotherProgram other;
            ASSERT_TRUE(other.grab(xKeyA, static_cast<std::uint16_t>(controlAlt | locks)));
            EXPECT_EQ(keys_->add(1, keyA, control | option), std::unexpected(badAccess)) << locks;
            // Nothing of it was kept.
            AnotherProgram third;
            EXPECT_EQ(third.grab(xKeyA, controlAlt), locks != 0);
        }
        // The server frees what a program held some time after that has gone.
        EXPECT_TRUE(eventually([this] { return keys_->add(1, keyA, control | option).has_value(); }));
        type("key", "ctrl+alt+a");
        EXPECT_EQ(heard(), once_);
        keys_->remove(1);
    }
}

TEST_F(X11HotKeysTest, KeysThatTheServerHasNoNumberForAreRefused)
{
    constexpr std::uint32_t function = 0x3f;
    constexpr std::uint32_t unassigned = 0x34;
    EXPECT_EQ(keys_->add(1, function, 0), std::unexpected(badValue));
    EXPECT_EQ(keys_->add(1, unassigned, control), std::unexpected(badValue));
    EXPECT_EQ(keys_->add(1, 0x10000, control), std::unexpected(badValue));
}

TEST_F(X11HotKeysTest, ARemovedCombinationIsFreeForOthers)
{
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyA, control | option);
    AnotherProgram other;
    EXPECT_FALSE(other.grab(xKeyA, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1));
    keys_->remove(1);
    keys_->remove(1);
    keys_->remove(7);
    type("key", "ctrl+alt+a");
    EXPECT_EQ(heard(), QStringList());
    for (const int locks : {0, XCB_MOD_MASK_LOCK + 0, XCB_MOD_MASK_2 + 0, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2}) {
        EXPECT_TRUE(other.grab(xKeyA, static_cast<std::uint16_t>(XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | locks)))
            << locks;
    }
}

TEST_F(X11HotKeysTest, AllIsFreeWhenThePortGoes)
{
    add(1, keyA, control | option);
    keys_.reset();
    AnotherProgram other;
    EXPECT_TRUE(eventually([&] { return other.grab(xKeyA, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1); }));
}

TEST_F(X11HotKeysTest, TwoIdsOfOneCombinationAreBothHeardUntilEachIsRemoved)
{
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyA, control);
    add(2, keyA, control);
    type("key", "ctrl+a");
    EXPECT_EQ(heard(), QStringList({u"press 1"_s, u"press 2"_s, u"release 1"_s, u"release 2"_s}));
    keys_->remove(2);
    type("key", "ctrl+a");
    EXPECT_EQ(heard(), once_);
}

TEST_F(X11HotKeysTest, NothingIsHeardBeforeItListensNorAfter)
{
    add(1, keyA, control | option);
    const test::KeyEventCounter counter;
    type("key", "ctrl+alt+a");
    ASSERT_TRUE(eventually([&] { return counter.presses() == 1; }));
    listen(HotKeyPort::Listening::hotKeys);
    type("key", "ctrl+alt+a");
    EXPECT_EQ(heard(), once_);
    listen(HotKeyPort::Listening::nothing);
    const int before = counter.presses();
    type("key", "ctrl+alt+a");
    ASSERT_TRUE(eventually([&] { return counter.presses() > before; }));
    listen(HotKeyPort::Listening::hotKeys);
    EXPECT_EQ(heard(), QStringList());
    type("key", "ctrl+alt+a");
    EXPECT_EQ(heard(), once_);
}

TEST_F(X11HotKeysTest, AKeyThatIsDownWhenItIsAddedIsTheFocusedWindowsUntilItsRelease)
{
    listen(HotKeyPort::Listening::hotKeys);
    type("keydown", "ctrl+alt+a");
    add(1, keyA, control | option);
    const test::KeyEventCounter counter;
    ASSERT_TRUE(eventually([&] { return counter.presses() > 3; })) << "The server repeats the key.";
    type("keyup", "ctrl+alt+a");
    EXPECT_EQ(heard(), QStringList());
    type("key", "ctrl+alt+a");
    EXPECT_EQ(heard(), once_);
}

TEST_F(X11HotKeysTest, ThePhysicalKeyStaysTheSameWhenTheLayoutChanges)
{
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyY, control | option);
    for (const QStringList &layout : {QStringList{u"de"_s}, {u"us,ru"_s}, {u"ru"_s}, {u"us"_s}}) {
        server_.run(u"setxkbmap"_s, layout);
        type("keydown", "ctrl+alt+29");
        type("keyup", "ctrl+alt+29");
        EXPECT_EQ(heard(), once_) << layout.first().toStdString();
    }
}

TEST_F(X11HotKeysTest, ItFollowsNumLockToAnotherModifier)
{
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyA, control | option);
    const QString display = qEnvironmentVariable("DISPLAY");
    QByteArray keymap = server_.run(u"xkbcomp"_s, {u"-xkb"_s, display, u"-"_s});
    ASSERT_TRUE(keymap.contains("modifier_map Mod2 { <NMLK> };"));
    keymap.replace("modifier_map Mod2 { <NMLK> };", "modifier_map Mod3 { <NMLK> };");
    server_.run(u"xkbcomp"_s, {u"-w0"_s, u"-"_s, display}, keymap);
    // What the server told of the new keyboard has come before this.
    EXPECT_EQ(heard(), QStringList());
    AnotherProgram other;
    EXPECT_TRUE(other.grab(xKeyA, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_2));
    EXPECT_FALSE(other.grab(xKeyA, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_3));
    type("key", "Num_Lock");
    type("key", "ctrl+alt+a");
    EXPECT_EQ(heard(), once_);
}

TEST_F(X11HotKeysTest, TheTimeOfAPressIsNotedForTheProgramThatItStarts)
{
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyA, control | option);
    EXPECT_FALSE(source_.apply({}).contains(u"DESKTOP_STARTUP_ID"_s));
    type("key", "ctrl+alt+a");
    EXPECT_EQ(heard(), once_);
    EXPECT_TRUE(source_.apply({}).value(u"DESKTOP_STARTUP_ID"_s).contains("_TIME"_L1));
}

TEST_F(X11HotKeysTest, WhatIsNeverHandledIsLeftAlone)
{
    keys_->setHandlers({});
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyA, control | option);
    type("key", "ctrl+alt+a");
    const test::KeyEventCounter counter;
    type("key", "ctrl+alt+a");
    EXPECT_TRUE(eventually([&] { return counter.presses() > 0; }));
}

TEST(X11HotKeys, AreMissingWithoutAnXServer)
{
    const test::ScopedVariable platform("QT_QPA_PLATFORM", "offscreen");
    int argumentCount = 1;
    char name[] = "vantrel";
    char *arguments[] = {name, nullptr};
    ActivationSource source;
    EXPECT_EQ(X11HotKeys::create(source), nullptr);
    const QGuiApplication program(argumentCount, arguments);
    EXPECT_EQ(X11HotKeys::create(source), nullptr);
}

} // namespace
} // namespace vantrel
