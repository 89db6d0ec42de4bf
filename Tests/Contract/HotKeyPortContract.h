#pragma once

#include "KeyboardShortcuts/HotKeyPort.h"
#include "KeyboardShortcuts/ModifierFlags.h"

#include <gtest/gtest.h>

#include <concepts>
#include <string>
#include <vector>

namespace vantrel::test {

/// A port with the keyboard that belongs to it. Keys are virtual key codes (kVK), modifier keys included.
template <typename System>
concept HotKeySystem = requires(System system, std::uint32_t number) {
    { system.port() } -> std::same_as<HotKeyPort &>;
    /// A key goes down, or up again.
    system.press(number);
    system.release(number);
    /// The keys that are down stay so until they have repeated a few times.
    system.repeat();
    /// Returns when everything that was pressed so far has been reported.
    system.settle();
    /// Another program takes the combination: key code and Carbon modifiers.
    system.holdElsewhere(number, number);
    /// The program gets the keyboard, as when one of its menus opens.
    system.openMenu();
};

/// Where one combination may belong to several programs, which all hear it: the system has a constant of that name that
/// is true.
template <typename System>
concept SharedHotKeySystem = requires { requires System::sharesCombinations; };

/// What every port does. `INSTANTIATE_TYPED_TEST_SUITE_P(Name, HotKeyPortContract, TheSystem)` runs it.
template <HotKeySystem System>
class HotKeyPortContract : public testing::Test {
protected:
    using Listening = HotKeyPort::Listening;
    using Lines = std::vector<std::string>;

    static constexpr std::uint32_t keyA = 0;
    static constexpr std::uint32_t keyP = 35;
    static constexpr std::uint32_t shiftKey = 0x38;
    static constexpr std::uint32_t capsLockKey = 0x39;
    static constexpr std::uint32_t optionKey = 0x3a;
    static constexpr std::uint32_t controlKey = 0x3b;
    static constexpr std::uint32_t clearKey = 71;
    static constexpr std::uint32_t controlOption = CarbonModifier::control | CarbonModifier::option;

    HotKeyPort &port() { return system_.port(); }

    /// Notes what is heard from now on.
    void hear(Listening listening)
    {
        port().setHandlers({
            .hotKey =
                [this](std::uint32_t id, bool isPressed) {
                    heard_.push_back(std::to_string(id) + (isPressed ? " down" : " up"));
                    return true;
                },
            .rawKey =
                [this](std::uint32_t keyCode, std::uint32_t modifiers, bool isPressed) {
                    heard_.push_back("key " + std::to_string(keyCode) + " with " + std::to_string(modifiers) +
                                     (isPressed ? " down" : " up"));
                    return keyCode == keyA;
                },
        });
        port().listen(listening);
    }

    void add(std::uint32_t id, std::uint32_t keyCode, std::uint32_t modifiers)
    {
        const auto added = port().add(id, keyCode, modifiers);
        EXPECT_TRUE(added.has_value()) << "status " << added.error();
    }

    /// The keys go down in their order and up in the opposite one.
    void type(const std::vector<std::uint32_t> &keys)
    {
        for (const std::uint32_t key : keys)
            system_.press(key);
        for (auto key = keys.rbegin(); key != keys.rend(); ++key)
            system_.release(*key);
    }

    /// What was heard since it was last asked, after all keys have been reported.
    Lines takeHeard()
    {
        system_.settle();
        return std::exchange(heard_, {});
    }

    System system_;
    Lines heard_;
};

TYPED_TEST_SUITE_P(HotKeyPortContract);

TYPED_TEST_P(HotKeyPortContract, AKeyThatWasAddedIsHeardGoingDownAndUp)
{
    this->hear(HotKeyPort::Listening::hotKeys);
    this->add(7, this->keyA, this->controlOption);
    this->system_.press(this->controlKey);
    this->system_.press(this->optionKey);
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{}));
    this->system_.press(this->keyA);
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"7 down"}));
    this->system_.release(this->keyA);
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"7 up"}));
    this->system_.release(this->optionKey);
    this->system_.release(this->controlKey);
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{}));
}

TYPED_TEST_P(HotKeyPortContract, AKeyThatIsHeldIsHeardOnce)
{
    this->hear(HotKeyPort::Listening::hotKeys);
    this->add(7, this->keyA, this->controlOption);
    for (const std::uint32_t key : {this->controlKey, this->optionKey, this->keyA})
        this->system_.press(key);
    this->system_.repeat();
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"7 down"}));
    for (const std::uint32_t key : {this->keyA, this->optionKey, this->controlKey})
        this->system_.release(key);
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"7 up"}));
}

TYPED_TEST_P(HotKeyPortContract, ModifiersMayBeReleasedFirst)
{
    this->hear(HotKeyPort::Listening::hotKeys);
    this->add(7, this->keyA, this->controlOption);
    for (const std::uint32_t key : {this->controlKey, this->optionKey, this->keyA})
        this->system_.press(key);
    for (const std::uint32_t key : {this->controlKey, this->optionKey, this->keyA})
        this->system_.release(key);
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"7 down", "7 up"}));
}

TYPED_TEST_P(HotKeyPortContract, OtherModifiersMakeAnotherCombination)
{
    this->hear(HotKeyPort::Listening::hotKeys);
    this->add(7, this->keyA, this->controlOption);
    this->type({this->keyA});
    this->type({this->controlKey, this->keyA});
    this->type({this->controlKey, this->optionKey, this->shiftKey, this->keyA});
    this->type({this->controlKey, this->optionKey, this->keyP});
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{}));
}

TYPED_TEST_P(HotKeyPortContract, LockedKeysMakeNoDifference)
{
    this->hear(HotKeyPort::Listening::hotKeys);
    this->add(7, this->keyA, this->controlOption);
    for (const std::uint32_t lock : {this->capsLockKey, this->clearKey}) {
        this->type({lock});
        this->type({this->controlKey, this->optionKey, this->keyA});
        EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"7 down", "7 up"})) << lock;
        this->type({lock});
    }
}

TYPED_TEST_P(HotKeyPortContract, SeveralAreToldByTheirIds)
{
    this->hear(HotKeyPort::Listening::hotKeys);
    this->add(3, this->keyA, this->controlOption);
    this->add(9, this->keyP, this->controlOption);
    this->add(4, this->keyA, this->controlOption | CarbonModifier::shift);
    this->type({this->controlKey, this->optionKey, this->keyP});
    this->type({this->controlKey, this->optionKey, this->keyA});
    this->type({this->controlKey, this->optionKey, this->shiftKey, this->keyA});
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"9 down", "9 up", "3 down", "3 up", "4 down", "4 up"}));
}

TYPED_TEST_P(HotKeyPortContract, AKeyThatWasRemovedIsNoLongerHeard)
{
    this->hear(HotKeyPort::Listening::hotKeys);
    this->add(3, this->keyA, this->controlOption);
    this->add(9, this->keyP, this->controlOption);
    this->port().remove(3);
    this->port().remove(1000);
    this->type({this->controlKey, this->optionKey, this->keyA});
    this->type({this->controlKey, this->optionKey, this->keyP});
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"9 down", "9 up"}));
    this->add(3, this->keyA, this->controlOption);
    this->type({this->controlKey, this->optionKey, this->keyA});
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"3 down", "3 up"}));
}

TYPED_TEST_P(HotKeyPortContract, NothingIsHeardUnlessThePortListens)
{
    this->add(7, this->keyA, this->controlOption);
    this->type({this->controlKey, this->optionKey, this->keyA});
    this->hear(HotKeyPort::Listening::nothing);
    this->type({this->controlKey, this->optionKey, this->keyA});
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{}));
    this->port().listen(HotKeyPort::Listening::hotKeys);
    this->type({this->controlKey, this->optionKey, this->keyA});
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"7 down", "7 up"}));
}

TYPED_TEST_P(HotKeyPortContract, NewHandlersTakeThePlaceOfTheOldOnes)
{
    this->hear(HotKeyPort::Listening::hotKeys);
    this->add(7, this->keyA, this->controlOption);
    int heardByOthers = 0;
    this->port().setHandlers({
        .hotKey = [&heardByOthers](std::uint32_t, bool) { return ++heardByOthers > 0; },
        .rawKey = {},
    });
    this->type({this->controlKey, this->optionKey, this->keyA});
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{}));
    EXPECT_EQ(heardByOthers, 2);
    this->port().setHandlers({});
}

TYPED_TEST_P(HotKeyPortContract, WhatAnotherProgramHoldsIsRefusedWithANumberUnlessBothHearIt)
{
    this->hear(HotKeyPort::Listening::hotKeys);
    this->system_.holdElsewhere(this->keyA, this->controlOption);
    const auto added = this->port().add(7, this->keyA, this->controlOption);
    std::vector<std::string> heard{"8 down", "8 up"};
    if constexpr (SharedHotKeySystem<TypeParam>) {
        EXPECT_TRUE(added.has_value());
        heard.insert(heard.begin(), {"7 down", "7 up"});
    } else {
        ASSERT_FALSE(added.has_value());
        EXPECT_NE(added.error(), 0);
    }
    this->add(8, this->keyP, this->controlOption);
    this->type({this->controlKey, this->optionKey, this->keyA});
    this->type({this->controlKey, this->optionKey, this->keyP});
    EXPECT_EQ(this->takeHeard(), heard);
}

TYPED_TEST_P(HotKeyPortContract, AKeyThatIsDownWhenItIsAddedIsHeardFromItsNextPress)
{
    this->hear(HotKeyPort::Listening::hotKeys);
    for (const std::uint32_t key : {this->controlKey, this->optionKey, this->keyA})
        this->system_.press(key);
    this->system_.settle();
    this->add(7, this->keyA, this->controlOption);
    this->system_.repeat();
    for (const std::uint32_t key : {this->keyA, this->optionKey, this->controlKey})
        this->system_.release(key);
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{}));
    this->type({this->controlKey, this->optionKey, this->keyA});
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"7 down", "7 up"}));
}

TYPED_TEST_P(HotKeyPortContract, WhileAMenuIsOpenKeysAreHeardWithTheirModifiers)
{
    this->hear(HotKeyPort::Listening::rawKeys);
    this->system_.openMenu();
    for (const std::uint32_t key : {this->controlKey, this->optionKey})
        this->system_.press(key);
    this->system_.settle();
    this->heard_.clear();
    this->system_.press(this->keyA);
    this->system_.release(this->keyA);
    EXPECT_EQ(this->takeHeard(), (std::vector<std::string>{"key 0 with 6144 down", "key 0 with 6144 up"}));
    for (const std::uint32_t key : {this->optionKey, this->controlKey})
        this->system_.release(key);
}

REGISTER_TYPED_TEST_SUITE_P(HotKeyPortContract, AKeyThatWasAddedIsHeardGoingDownAndUp, AKeyThatIsHeldIsHeardOnce,
                            ModifiersMayBeReleasedFirst, OtherModifiersMakeAnotherCombination,
                            LockedKeysMakeNoDifference, SeveralAreToldByTheirIds, AKeyThatWasRemovedIsNoLongerHeard,
                            NothingIsHeardUnlessThePortListens, NewHandlersTakeThePlaceOfTheOldOnes,
                            WhatAnotherProgramHoldsIsRefusedWithANumberUnlessBothHearIt,
                            AKeyThatIsDownWhenItIsAddedIsHeardFromItsNextPress,
                            WhileAMenuIsOpenKeysAreHeardWithTheirModifiers);

} // namespace vantrel::test
