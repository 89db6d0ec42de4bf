#include "KeyboardShortcuts/KeyboardShortcuts.h"

#include "Tests/Fakes/FakeHotKeyPort.h"
#include "Tests/Fakes/FakeKeyboardLayout.h"
#include "Tests/Fakes/FakeUserDefaults.h"
#include "Tests/KeyboardShortcuts/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr Shortcut controlCommandA{0, CarbonModifier::control | CarbonModifier::command};
constexpr Shortcut controlA{0, CarbonModifier::control};
constexpr Shortcut controlP{35, CarbonModifier::control};

const QString keyOne = u"KeyboardShortcuts_one"_s;

class KeyboardShortcutsTest : public testing::Test {
protected:
    KeyboardShortcutsTest()
    {
        QObject::connect(&shortcuts_, &KeyboardShortcuts::shortcutByNameDidChange,
                         [this](const ShortcutName &name) { noteChange(name); });
    }

    /// The name with what is stored and what the system holds by then.
    void noteChange(const ShortcutName &name)
    {
        const auto shortcut = shortcuts_.getShortcut(name);
        const QString text = shortcut ? shortcut->description(layout_) : u"none"_s;
        changes_.append(u"%1: %2, %3 held"_s.arg(name.rawValue, text, QString::number(port_.ids().size())));
    }

    void hear(const ShortcutName &name)
    {
        shortcuts_.onKeyDown(name, [this, name] { heard_.append(name.rawValue + u" down"); });
        shortcuts_.onKeyUp(name, [this, name] { heard_.append(name.rawValue + u" up"); });
    }

    /// Control and the key go down and up.
    void type(std::uint32_t keyCode)
    {
        port_.press(0x3b);
        port_.press(keyCode);
        port_.release(keyCode);
        port_.release(0x3b);
    }

    [[nodiscard]] QStringList takeHeard() { return std::exchange(heard_, {}); }
    [[nodiscard]] QStringList takeChanges() { return std::exchange(changes_, {}); }

    test::FakeUserDefaults defaults_;
    test::FakeHotKeyPort port_;
    test::FakeKeyboardLayout layout_;
    QStringList lines_;
    KeyboardShortcuts shortcuts_{{defaults_, port_, layout_, [this](const QString &line) { lines_.append(line); }}};
    QStringList changes_;
    QStringList heard_;
    const ShortcutName one_{u"one"_s};
    const ShortcutName two_{u"two"_s};
    const ShortcutName withDefault_{u"one"_s, controlP};
};

TEST_F(KeyboardShortcutsTest, AShortcutIsStoredAsTextUnderItsName)
{
    shortcuts_.setShortcut(controlCommandA, one_);
    EXPECT_EQ(defaults_.values(),
              (QHash<QString, QVariant>{{keyOne, u"{\"carbonKeyCode\":0,\"carbonModifiers\":4352}"_s}}));
    EXPECT_EQ(shortcuts_.getShortcut(one_), controlCommandA);
    EXPECT_EQ(shortcuts_.getShortcut(two_), std::nullopt);
}

TEST_F(KeyboardShortcutsTest, NamesAreTheSameByTheirRawValues)
{
    EXPECT_EQ(one_, withDefault_);
    EXPECT_NE(one_, two_);
    EXPECT_EQ(qHash(one_), qHash(withDefault_));
}

TEST_F(KeyboardShortcutsTest, WhatElseIsStoredThereIsNoShortcut)
{
    for (const QVariant &value : {QVariant(false), QVariant(true), QVariant(u"false"_s), QVariant(5), QVariant(),
                                  QVariant(u"{\"carbonKeyCode\":0}"_s),
                                  QVariant(QByteArray("{\"carbonKeyCode\":0,\"carbonModifiers\":4352}"))}) {
        defaults_.setValue(keyOne, value);
        EXPECT_EQ(shortcuts_.getShortcut(one_), std::nullopt) << value.toString().toStdString();
    }
}

TEST_F(KeyboardShortcutsTest, WhatAnotherProgramStoresIsRead)
{
    defaults_.setValue(keyOne, u"{\"carbonModifiers\":4096,\"carbonKeyCode\":35}"_s);
    EXPECT_EQ(shortcuts_.getShortcut(one_), controlP);
}

TEST_F(KeyboardShortcutsTest, RemovingWithoutADefaultDeletesTheEntry)
{
    shortcuts_.setShortcut(controlA, one_);
    shortcuts_.setShortcut(std::nullopt, one_);
    EXPECT_TRUE(defaults_.values().isEmpty());
    EXPECT_EQ(shortcuts_.getShortcut(one_), std::nullopt);
    EXPECT_TRUE(port_.ids().isEmpty());
    EXPECT_EQ(takeChanges(), QStringList({u"one: ⌃A, 1 held"_s, u"one: none, 0 held"_s}));
}

TEST_F(KeyboardShortcutsTest, ARemovedDefaultDoesNotComeBack)
{
    const ShortcutName name = shortcuts_.name(u"one"_s, controlP);
    EXPECT_EQ(shortcuts_.getShortcut(name), controlP);
    EXPECT_EQ(takeChanges(), QStringList(u"one: ⌃P, 1 held"_s));
    shortcuts_.setShortcut(std::nullopt, name);
    EXPECT_EQ(defaults_.values().value(keyOne), QVariant(false));
    EXPECT_EQ(shortcuts_.getShortcut(name), std::nullopt);
    EXPECT_EQ(takeChanges(), QStringList(u"one: none, 0 held"_s));
    EXPECT_EQ(shortcuts_.getShortcut(shortcuts_.name(u"one"_s, controlP)), std::nullopt);
    EXPECT_EQ(defaults_.values().value(keyOne), QVariant(false));
    EXPECT_TRUE(takeChanges().isEmpty());
}

TEST_F(KeyboardShortcutsTest, ADefaultDoesNotReplaceWhatIsStored)
{
    shortcuts_.setShortcut(controlA, one_);
    EXPECT_EQ(shortcuts_.getShortcut(shortcuts_.name(u"one"_s, controlP)), controlA);
    defaults_.setValue(keyOne, u"no shortcut"_s);
    EXPECT_EQ(shortcuts_.getShortcut(shortcuts_.name(u"one"_s, controlP)), std::nullopt);
}

TEST_F(KeyboardShortcutsTest, ANameWithoutADefaultStoresNothing)
{
    EXPECT_EQ(shortcuts_.name(u"one"_s), one_);
    EXPECT_EQ(defaults_.writes(), 0);
    EXPECT_TRUE(takeChanges().isEmpty());
}

TEST_F(KeyboardShortcutsTest, RemovingNothingChangesNothing)
{
    shortcuts_.setShortcut(std::nullopt, one_);
    shortcuts_.setShortcut(std::nullopt, withDefault_);
    defaults_.setValue(keyOne, false);
    shortcuts_.setShortcut(std::nullopt, withDefault_);
    EXPECT_EQ(defaults_.writes(), 1);
    EXPECT_TRUE(takeChanges().isEmpty());
    EXPECT_TRUE(port_.takeCalls().isEmpty());
}

TEST_F(KeyboardShortcutsTest, ANewShortcutTakesThePlaceOfTheOldOneInTheSystem)
{
    shortcuts_.setShortcut(controlA, one_);
    std::ignore = port_.takeCalls();
    shortcuts_.setShortcut(controlP, one_);
    EXPECT_EQ(port_.takeCalls(), QStringList({u"remove 1"_s, u"add 2: 35 4096"_s, u"listen to hotkeys"_s}));
    EXPECT_EQ(takeChanges(), QStringList({u"one: ⌃A, 1 held"_s, u"one: ⌃P, 1 held"_s}));
}

TEST_F(KeyboardShortcutsTest, TheSameShortcutOnceMoreIsAChangeToo)
{
    shortcuts_.setShortcut(controlA, one_);
    shortcuts_.setShortcut(controlA, one_);
    EXPECT_EQ(takeChanges().size(), 2);
    EXPECT_EQ(port_.ids(), QList<std::uint32_t>{2});
}

TEST_F(KeyboardShortcutsTest, ActionsAreCalledInTheirOrderOnTheirSide)
{
    shortcuts_.setShortcut(controlA, one_);
    for (const QString &number : {u"1"_s, u"2"_s, u"3"_s})
        shortcuts_.onKeyUp(one_, [this, number] { heard_.append(number); });
    port_.press(0x3b);
    port_.press(0);
    EXPECT_TRUE(takeHeard().isEmpty());
    port_.release(0);
    EXPECT_EQ(takeHeard(), QStringList({u"1"_s, u"2"_s, u"3"_s}));
}

TEST_F(KeyboardShortcutsTest, TwoNamesWithOneShortcutBothActAndItIsRegisteredOnce)
{
    shortcuts_.setShortcut(controlA, one_);
    shortcuts_.setShortcut(controlA, two_);
    hear(one_);
    hear(two_);
    EXPECT_EQ(port_.ids(), QList<std::uint32_t>{1});
    type(0);
    EXPECT_EQ(takeHeard(), QStringList({u"one down"_s, u"two down"_s, u"one up"_s, u"two up"_s}));
}

TEST_F(KeyboardShortcutsTest, AnActionRegistersWhatWasStoredBefore)
{
    defaults_.setValue(keyOne, controlA.json());
    shortcuts_.onKeyUp(two_, [] {});
    EXPECT_TRUE(port_.takeCalls().isEmpty());
    hear(one_);
    EXPECT_EQ(port_.takeCalls(), QStringList({u"add 1: 0 4096"_s, u"listen to hotkeys"_s}));
    type(0);
    EXPECT_EQ(takeHeard(), QStringList({u"one down"_s, u"one up"_s}));
}

TEST_F(KeyboardShortcutsTest, AShortcutSetLaterReachesTheActions)
{
    hear(one_);
    shortcuts_.setShortcut(controlA, one_);
    shortcuts_.setShortcut(controlP, one_);
    type(0);
    EXPECT_TRUE(takeHeard().isEmpty());
    type(35);
    EXPECT_EQ(takeHeard(), QStringList({u"one down"_s, u"one up"_s}));
    shortcuts_.setShortcut(std::nullopt, one_);
    type(35);
    EXPECT_TRUE(takeHeard().isEmpty());
}

TEST_F(KeyboardShortcutsTest, WhatIsStoredWhenTheKeyIsPressedCounts)
{
    shortcuts_.setShortcut(controlA, one_);
    hear(one_);
    hear(two_);
    // Another program gives the shortcut to the other name.
    defaults_.remove(keyOne);
    defaults_.setValue(u"KeyboardShortcuts_two"_s, controlA.json());
    type(0);
    EXPECT_EQ(takeHeard(), QStringList({u"two down"_s, u"two up"_s}));
}

TEST_F(KeyboardShortcutsTest, ADisabledNameComesBackWithItsActions)
{
    shortcuts_.setShortcut(controlA, one_);
    shortcuts_.setShortcut(controlP, two_);
    hear(one_);
    hear(two_);
    shortcuts_.disable({one_, ShortcutName{u"none"_s}});
    EXPECT_EQ(port_.ids(), QList<std::uint32_t>{2});
    type(0);
    type(35);
    EXPECT_EQ(takeHeard(), QStringList({u"two down"_s, u"two up"_s}));
    shortcuts_.enable({one_, two_, ShortcutName{u"none"_s}});
    EXPECT_EQ(port_.ids(), (QList<std::uint32_t>{2, 3}));
    type(0);
    EXPECT_EQ(takeHeard(), QStringList({u"one down"_s, u"one up"_s}));
    EXPECT_TRUE(takeChanges().size() == 2);
}

TEST_F(KeyboardShortcutsTest, DisablingOneOfTwoNamesTakesTheShortcutFromBoth)
{
    shortcuts_.setShortcut(controlA, one_);
    shortcuts_.setShortcut(controlA, two_);
    shortcuts_.disable({one_});
    EXPECT_TRUE(port_.ids().isEmpty());
    shortcuts_.enable({two_});
    shortcuts_.enable({one_});
    EXPECT_EQ(port_.ids(), QList<std::uint32_t>{2});
}

TEST_F(KeyboardShortcutsTest, SwitchedOffAndOnEachHotkeyHasItsOldId)
{
    shortcuts_.setShortcut(controlA, one_);
    shortcuts_.setShortcut(controlP, two_);
    hear(one_);
    EXPECT_TRUE(shortcuts_.isEnabled());
    shortcuts_.setEnabled(false);
    EXPECT_FALSE(shortcuts_.isEnabled());
    EXPECT_TRUE(port_.ids().isEmpty());
    type(0);
    EXPECT_TRUE(takeHeard().isEmpty());
    shortcuts_.setEnabled(true);
    EXPECT_EQ(port_.ids(), (QList<std::uint32_t>{1, 2}));
    type(0);
    EXPECT_EQ(takeHeard(), QStringList({u"one down"_s, u"one up"_s}));
}

TEST_F(KeyboardShortcutsTest, OnlyAChangeOfValueAsksTheSystem)
{
    shortcuts_.setShortcut(controlA, one_);
    std::ignore = port_.takeCalls();
    shortcuts_.setEnabled(true);
    shortcuts_.setMenuOpen(false);
    EXPECT_TRUE(port_.takeCalls().isEmpty());
    shortcuts_.setMenuOpen(true);
    EXPECT_FALSE(port_.takeCalls().isEmpty());
    shortcuts_.setMenuOpen(true);
    EXPECT_TRUE(port_.takeCalls().isEmpty());
}

TEST_F(KeyboardShortcutsTest, WhileAMenuIsOpenShortcutsWorkAndOtherKeysAreTheMenus)
{
    shortcuts_.setShortcut(controlA, one_);
    hear(one_);
    shortcuts_.setMenuOpen(true);
    EXPECT_TRUE(port_.ids().isEmpty());
    EXPECT_FALSE(port_.press(125));
    EXPECT_FALSE(port_.release(125));
    EXPECT_FALSE(port_.press(0x3b));
    EXPECT_TRUE(port_.press(0));
    EXPECT_TRUE(port_.release(0));
    EXPECT_FALSE(port_.release(0x3b));
    EXPECT_EQ(takeHeard(), QStringList({u"one down"_s, u"one up"_s}));
    shortcuts_.setMenuOpen(false);
    EXPECT_EQ(port_.ids(), QList<std::uint32_t>{1});
}

TEST_F(KeyboardShortcutsTest, WhatIsSwitchedOffStaysSoWhileAMenuOpensAndCloses)
{
    shortcuts_.setShortcut(controlA, one_);
    hear(one_);
    shortcuts_.setEnabled(false);
    shortcuts_.setMenuOpen(true);
    type(0);
    shortcuts_.setMenuOpen(false);
    type(0);
    EXPECT_TRUE(takeHeard().isEmpty());
    EXPECT_TRUE(port_.ids().isEmpty());
}

TEST_F(KeyboardShortcutsTest, WhileAFieldRecordsNothingActs)
{
    shortcuts_.setShortcut(controlA, one_);
    hear(one_);
    shortcuts_.setRecorderActive(true);
    EXPECT_TRUE(shortcuts_.isRecorderActive());
    type(0);
    EXPECT_TRUE(takeHeard().isEmpty());
    shortcuts_.setRecorderActive(false);
    type(0);
    EXPECT_EQ(takeHeard().size(), 2);
}

TEST_F(KeyboardShortcutsTest, WhatTheSystemRefusesIsStoredAllTheSame)
{
    port_.holdElsewhere(0, CarbonModifier::control);
    shortcuts_.setShortcut(controlA, one_);
    EXPECT_EQ(lines_, QStringList(u"Error registering hotkey ⌃A: -9878"_s));
    EXPECT_EQ(shortcuts_.getShortcut(one_), controlA);
    EXPECT_EQ(takeChanges(), QStringList(u"one: ⌃A, 0 held"_s));
    // It isn't tried again by itself; being disabled and enabled does that.
    shortcuts_.enable({one_});
    EXPECT_EQ(lines_.size(), 1);
    port_.freeElsewhere(0, CarbonModifier::control);
    shortcuts_.disable({one_});
    shortcuts_.enable({one_});
    EXPECT_EQ(port_.ids().size(), 1);
    EXPECT_EQ(lines_.size(), 1);
}

TEST_F(KeyboardShortcutsTest, AnActionMayAddOthersAndChangeShortcuts)
{
    shortcuts_.setShortcut(controlA, one_);
    shortcuts_.onKeyUp(one_, [this] {
        heard_.append(u"first"_s);
        shortcuts_.onKeyUp(one_, [this] { heard_.append(u"added"_s); });
        shortcuts_.setShortcut(controlP, one_);
    });
    type(0);
    EXPECT_EQ(takeHeard(), QStringList(u"first"_s));
    type(35);
    EXPECT_EQ(takeHeard(), QStringList({u"first"_s, u"added"_s}));
}

TEST_F(KeyboardShortcutsTest, ProfileIdsAreNamesAsTheyAre)
{
    const ShortcutName name{u"profile.com.google.Chrome/chromium:Profile 1 – Büro %2F"_s};
    EXPECT_EQ(KeyboardShortcuts::userDefaultsKey(name),
              u"KeyboardShortcuts_profile.com.google.Chrome/chromium:Profile 1 – Büro %2F"_s);
}

TEST(KeyboardShortcuts, LinesGoToStandardOutput)
{
    testing::internal::CaptureStdout();
    KeyboardShortcuts::printToStandardOutput(u"Error registering hotkey ⌃A: -9878"_s);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Error registering hotkey ⌃A: -9878\n");
}

} // namespace
} // namespace vantrel
