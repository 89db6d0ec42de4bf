#pragma once

#include "KeyboardShortcuts/KeyboardLayout.h"
#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

#include <concepts>
#include <cstdint>

/// What every implementation of `KeyboardLayout` keeps to where the user can choose the layout:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, KeyboardLayoutContract, System)`.
namespace vantrel::test {

enum class TestedLayout : std::uint8_t { unitedStates, german };

/// A user with a keyboard.
template <typename System>
concept KeyboardLayoutSystem =
    std::default_initializable<System> && requires(System system, TestedLayout layout, const bool &isTold) {
        { system.layout() } -> std::same_as<KeyboardLayout &>;
        /// The user chooses the layout, which is not the one that is in use. Done when the flag is true, which whoever
        /// listens sets; not for ever.
        { system.choose(layout, isTold) } -> std::same_as<void>;
        /// Which it is.
        { system.chosen() } -> std::same_as<TestedLayout>;
    };

template <KeyboardLayoutSystem System>
class KeyboardLayoutContract : public testing::Test {
protected:
    static constexpr std::uint32_t keyA = 0x00;
    static constexpr std::uint32_t keyY = 0x10;
    static constexpr std::uint32_t keyEqual = 0x18;
    static constexpr std::uint32_t keyEight = 0x1c;
    static constexpr std::uint32_t keyLeftBracket = 0x21;

    /// Whatever was chosen before.
    void choose(TestedLayout wanted)
    {
        if (system_.chosen() == wanted)
            return;
        bool isTold = false;
        system_.layout().onChange([&isTold] { isTold = true; });
        system_.choose(wanted, isTold);
        EXPECT_TRUE(isTold) << "Nobody was told of the layout.";
        system_.layout().onChange({});
    }

    [[nodiscard]] std::optional<QString> character(std::uint32_t keyCode)
    {
        return system_.layout().character(keyCode);
    }

    System system_;
};

TYPED_TEST_SUITE_P(KeyboardLayoutContract);

TYPED_TEST_P(KeyboardLayoutContract, AKeyTypesWhatTheLayoutHasWithoutModifiers)
{
    this->choose(TestedLayout::unitedStates);
    EXPECT_EQ(this->character(this->keyA), QStringLiteral("a"));
    EXPECT_EQ(this->character(this->keyY), QStringLiteral("y"));
    EXPECT_EQ(this->character(this->keyEqual), QStringLiteral("="));
    EXPECT_EQ(this->character(this->keyEight), QStringLiteral("8"));
    EXPECT_EQ(this->character(this->keyLeftBracket), QStringLiteral("["));
}

TYPED_TEST_P(KeyboardLayoutContract, AnotherLayoutCountsOnceItIsTold)
{
    this->choose(TestedLayout::german);
    EXPECT_EQ(this->character(this->keyA), QStringLiteral("a"));
    EXPECT_EQ(this->character(this->keyY), QStringLiteral("z"));
    EXPECT_EQ(this->character(this->keyLeftBracket), QStringLiteral("ü"));
    this->choose(TestedLayout::unitedStates);
    EXPECT_EQ(this->character(this->keyY), QStringLiteral("y"));
}

TYPED_TEST_P(KeyboardLayoutContract, AnAccentForTheNextKeyIsNothing)
{
    this->choose(TestedLayout::german);
    EXPECT_EQ(this->character(this->keyEqual), std::nullopt);
}

TYPED_TEST_P(KeyboardLayoutContract, KeysThatActTypeNothing)
{
    constexpr std::uint32_t keyReturn = 0x24;
    constexpr std::uint32_t keyTab = 0x30;
    constexpr std::uint32_t keyDelete = 0x33;
    constexpr std::uint32_t keyEscape = 0x35;
    constexpr std::uint32_t keyShift = 0x38;
    constexpr std::uint32_t keyF1 = 0x7a;
    constexpr std::uint32_t keyLeft = 0x7b;
    constexpr std::uint32_t noKey = 0xffffffff;
    for (const std::uint32_t key : {keyReturn, keyTab, keyDelete, keyEscape, keyShift, keyF1, keyLeft, noKey})
        EXPECT_EQ(this->character(key), std::nullopt) << key;
}

TYPED_TEST_P(KeyboardLayoutContract, OnlyTheFunctionThatWasSetLastIsTold)
{
    const bool wasGerman = this->system_.chosen() == TestedLayout::german;
    int former = 0;
    bool isTold = false;
    this->system_.layout().onChange([&former] { ++former; });
    this->system_.layout().onChange([&isTold] { isTold = true; });
    this->system_.choose(wasGerman ? TestedLayout::unitedStates : TestedLayout::german, isTold);
    EXPECT_TRUE(isTold);
    EXPECT_EQ(former, 0);
    this->system_.layout().onChange({});
}

REGISTER_TYPED_TEST_SUITE_P(KeyboardLayoutContract, AKeyTypesWhatTheLayoutHasWithoutModifiers,
                            AnotherLayoutCountsOnceItIsTold, AnAccentForTheNextKeyIsNothing, KeysThatActTypeNothing,
                            OnlyTheFunctionThatWasSetLastIsTold);

} // namespace vantrel::test
