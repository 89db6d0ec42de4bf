#include "KeyboardShortcuts/CarbonKeyboardShortcuts.h"

#include "Tests/Fakes/FakeHotKeyPort.h"
#include "Tests/Fakes/FakeKeyboardLayout.h"
#include "Tests/KeyboardShortcuts/Printing.h"

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Listening = HotKeyPort::Listening;

constexpr Shortcut controlA{0, CarbonModifier::control};
constexpr Shortcut controlP{35, CarbonModifier::control};
constexpr std::uint32_t controlKey = 0x3b;

class CarbonKeyboardShortcutsTest : public testing::Test {
protected:
    void registerShortcut(const Shortcut &shortcut)
    {
        registry_->registerShortcut(
            shortcut, [this](const Shortcut &pressed) { note(u"down "_s, pressed); },
            [this](const Shortcut &pressed) { note(u"up "_s, pressed); });
    }

    void note(const QString &what, const Shortcut &shortcut) { heard_.append(what + shortcut.description(layout_)); }

    /// Control and the key go down and up.
    void type(std::uint32_t keyCode)
    {
        port_.press(controlKey);
        port_.press(keyCode);
        port_.release(keyCode);
        port_.release(controlKey);
    }

    [[nodiscard]] QStringList takeHeard() { return std::exchange(heard_, {}); }

    test::FakeHotKeyPort port_;
    test::FakeKeyboardLayout layout_;
    QStringList lines_;
    QStringList heard_;
    std::unique_ptr<CarbonKeyboardShortcuts> registry_ =
        std::make_unique<CarbonKeyboardShortcuts>(port_, layout_, [this](const QString &line) { lines_.append(line); });
};

TEST_F(CarbonKeyboardShortcutsTest, NothingIsAskedOfTheSystemBeforeTheFirstShortcut)
{
    registry_->updateEventHandler();
    registry_->setListening(Listening::rawKeys);
    registry_->setListening(Listening::nothing);
    registry_->setListening(Listening::hotKeys);
    registry_->unregisterShortcut(controlA);
    EXPECT_TRUE(port_.takeCalls().isEmpty());
    EXPECT_FALSE(port_.handlers().hotKey);
}

TEST_F(CarbonKeyboardShortcutsTest, IdsCountFromOne)
{
    registerShortcut(controlA);
    registerShortcut(controlP);
    EXPECT_EQ(port_.takeCalls(),
              QStringList({u"add 1: 0 4096"_s, u"listen to hotkeys"_s, u"add 2: 35 4096"_s, u"listen to hotkeys"_s}));
}

TEST_F(CarbonKeyboardShortcutsTest, PressAndReleaseReachTheirHandlersWithTheShortcut)
{
    registerShortcut(controlA);
    registerShortcut(controlP);
    type(35);
    EXPECT_EQ(takeHeard(), QStringList({u"down ⌃P"_s, u"up ⌃P"_s}));
    type(0);
    EXPECT_EQ(takeHeard(), QStringList({u"down ⌃A"_s, u"up ⌃A"_s}));
}

TEST_F(CarbonKeyboardShortcutsTest, AnUnknownIdIsLeftToOthers)
{
    registerShortcut(controlA);
    EXPECT_TRUE(port_.handlers().hotKey(1, true));
    EXPECT_FALSE(port_.handlers().hotKey(2, true));
    EXPECT_FALSE(port_.handlers().hotKey(0, false));
    EXPECT_EQ(takeHeard(), QStringList(u"down ⌃A"_s));
}

TEST_F(CarbonKeyboardShortcutsTest, ARefusalIsALineAndTheNumberIsUsedUp)
{
    port_.holdElsewhere(0, CarbonModifier::control);
    registerShortcut(controlA);
    EXPECT_EQ(lines_, QStringList(u"Error registering hotkey ⌃A: -9878"_s));
    EXPECT_EQ(port_.takeCalls(), QStringList(u"add 1: 0 4096"_s));
    EXPECT_FALSE(port_.handlers().hotKey);
    registerShortcut(controlP);
    EXPECT_EQ(port_.takeCalls(), QStringList({u"add 2: 35 4096"_s, u"listen to hotkeys"_s}));
    EXPECT_EQ(lines_.size(), 1);
}

TEST_F(CarbonKeyboardShortcutsTest, TheLineHasTheDescriptionAsItIs)
{
    port_.holdElsewhere(35, 0);
    layout_.set(35, u"%1%2"_s);
    registerShortcut({35, 0});
    EXPECT_EQ(lines_, QStringList(u"Error registering hotkey %1%2: -9878"_s));
}

TEST_F(CarbonKeyboardShortcutsTest, UnregisteringDropsEachRegistrationOfTheShortcut)
{
    registerShortcut(controlA);
    registerShortcut(controlP);
    registerShortcut(controlA);
    std::ignore = port_.takeCalls();
    registry_->unregisterShortcut({0, CarbonModifier::control | CarbonModifier::shift});
    EXPECT_TRUE(port_.takeCalls().isEmpty());
    registry_->unregisterShortcut(controlA);
    EXPECT_EQ(port_.takeCalls(), QStringList({u"remove 1"_s, u"remove 3"_s}));
    EXPECT_FALSE(port_.handlers().hotKey(1, true));
    type(0);
    EXPECT_TRUE(takeHeard().isEmpty());
}

TEST_F(CarbonKeyboardShortcutsTest, WhatIsGivenBackReturnsWithItsOldId)
{
    registerShortcut(controlA);
    registerShortcut(controlP);
    for (const auto &[listening, call] : {std::pair(Listening::nothing, u"listen to nothing"_s),
                                          std::pair(Listening::rawKeys, u"listen to raw keys"_s)}) {
        std::ignore = port_.takeCalls();
        registry_->setListening(listening);
        EXPECT_EQ(port_.takeCalls(), QStringList({u"remove 1"_s, u"remove 2"_s, call}));
        registry_->setListening(Listening::hotKeys);
        EXPECT_EQ(port_.takeCalls(), QStringList({u"add 1: 0 4096"_s, u"add 2: 35 4096"_s, u"listen to hotkeys"_s}));
        type(0);
        EXPECT_EQ(takeHeard(), QStringList({u"down ⌃A"_s, u"up ⌃A"_s}));
    }
}

TEST_F(CarbonKeyboardShortcutsTest, WhatIsRefusedOnItsReturnIsDroppedWithALine)
{
    registerShortcut(controlA);
    registerShortcut(controlP);
    registry_->setListening(Listening::nothing);
    port_.holdElsewhere(0, CarbonModifier::control);
    registry_->setListening(Listening::hotKeys);
    EXPECT_EQ(lines_, QStringList(u"Error registering hotkey ⌃A: -9878"_s));
    EXPECT_EQ(port_.ids(), QList<std::uint32_t>{2});
    port_.freeElsewhere(0, CarbonModifier::control);
    registry_->setListening(Listening::nothing);
    registry_->setListening(Listening::hotKeys);
    EXPECT_EQ(port_.ids(), QList<std::uint32_t>{2});
    EXPECT_EQ(lines_.size(), 1);
}

TEST_F(CarbonKeyboardShortcutsTest, SwitchingTwiceGivesNothingBackTwice)
{
    registerShortcut(controlA);
    registry_->setListening(Listening::rawKeys);
    std::ignore = port_.takeCalls();
    registry_->setListening(Listening::nothing);
    EXPECT_EQ(port_.takeCalls(), QStringList(u"listen to nothing"_s));
    registry_->unregisterShortcut(controlA);
    EXPECT_TRUE(port_.takeCalls().isEmpty());
}

TEST_F(CarbonKeyboardShortcutsTest, WhatIsRegisteredWhileAMenuIsOpenWorksThereAndAfterwards)
{
    registerShortcut(controlP);
    registry_->setListening(Listening::rawKeys);
    std::ignore = port_.takeCalls();
    registerShortcut(controlA);
    EXPECT_EQ(port_.takeCalls(), QStringList({u"add 2: 0 4096"_s, u"remove 2"_s, u"listen to raw keys"_s}));
    type(0);
    EXPECT_EQ(takeHeard(), QStringList({u"down ⌃A"_s, u"up ⌃A"_s}));
    registry_->setListening(Listening::hotKeys);
    type(0);
    EXPECT_EQ(takeHeard(), QStringList({u"down ⌃A"_s, u"up ⌃A"_s}));
}

TEST_F(CarbonKeyboardShortcutsTest, RawKeysAreComparedAfterNormalizing)
{
    registerShortcut(controlA);
    registry_->setListening(Listening::rawKeys);
    const auto raw = port_.handlers().rawKey;
    // Caps Lock in Carbon's mask, and the right-hand keys.
    EXPECT_TRUE(raw(0, CarbonModifier::control | 0x400 | 0x8000, true));
    EXPECT_TRUE(raw(0, CarbonModifier::control, false));
    EXPECT_EQ(takeHeard(), QStringList({u"down ⌃A"_s, u"up ⌃A"_s}));
    EXPECT_FALSE(raw(0, CarbonModifier::control | CarbonModifier::shift, true));
    EXPECT_FALSE(raw(0, 0, false));
    EXPECT_FALSE(raw(35, CarbonModifier::control, true));
    EXPECT_TRUE(takeHeard().isEmpty());
}

TEST_F(CarbonKeyboardShortcutsTest, AHandlerMayDropItsOwnShortcut)
{
    const auto token = std::make_shared<QString>(u"still there"_s);
    registry_->registerShortcut(
        controlA,
        [this, token](const Shortcut &pressed) {
            registry_->unregisterShortcut(pressed);
            heard_.append(*token);
        },
        [](const Shortcut &) {});
    type(0);
    EXPECT_EQ(takeHeard(), QStringList(u"still there"_s));
    EXPECT_TRUE(port_.ids().isEmpty());
}

TEST_F(CarbonKeyboardShortcutsTest, AtItsEndItGivesAllBack)
{
    registerShortcut(controlA);
    registerShortcut(controlP);
    registry_.reset();
    EXPECT_TRUE(port_.ids().isEmpty());
    EXPECT_FALSE(port_.handlers().hotKey);
    type(0);
    EXPECT_TRUE(takeHeard().isEmpty());
}

using CarbonKeyboardShortcutsDeathTest = CarbonKeyboardShortcutsTest;

TEST_F(CarbonKeyboardShortcutsDeathTest, NumbersBeyond32BitsEndTheProgram)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(registerShortcut({-1, 0}), "can't have the number -1");
    EXPECT_DEATH(registerShortcut({0, qint64{1} << 32}), "can't have the number 4294967296");
    registerShortcut({qint64{0xffff'ffff}, 0});
    EXPECT_EQ(port_.ids(), QList<std::uint32_t>{1});
}

} // namespace
} // namespace vantrel
