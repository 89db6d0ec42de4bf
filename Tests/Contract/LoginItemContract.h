#pragma once

#include "Platform/LoginItem.h"

#include <gtest/gtest.h>

#include <concepts>

/// What every implementation of `LoginItem` keeps to: `INSTANTIATE_TYPED_TEST_SUITE_P(Name, LoginItemContract,
/// System)`, and the same with `LoginItemRefusalContract`.
namespace vantrel::test {

/// A user's session that doesn't start the program at first.
template <typename System>
concept LoginItemSystem = std::default_initializable<System> && requires(System system, bool isOn) {
    { system.item() } -> std::same_as<LoginItem &>;
    /// Whether the session will start the program, as it is found without the port.
    { system.startsProgram() } -> std::same_as<bool>;
    /// The user says so in the system's own settings.
    { system.change(isOn) } -> std::same_as<void>;
};

template <LoginItemSystem System>
class LoginItemContract : public testing::Test {
protected:
    void expect(bool isOn, const char *when)
    {
        EXPECT_EQ(system_.item().isEnabled(), isOn) << when;
        EXPECT_EQ(system_.startsProgram(), isOn) << when;
    }

    void set(bool isOn)
    {
        const auto done = system_.item().setEnabled(isOn);
        EXPECT_TRUE(done.has_value()) << done.error().message.toStdString();
    }

    System system_;
};

TYPED_TEST_SUITE_P(LoginItemContract);

TYPED_TEST_P(LoginItemContract, TheSessionStartsTheProgramFromWhenItIsSwitchedOnUntilItIsSwitchedOff)
{
    this->expect(false, "at first");
    for (int time = 0; time < 2; ++time) {
        this->set(true);
        this->expect(true, "switched on");
        this->set(false);
        this->expect(false, "switched off");
    }
}

TYPED_TEST_P(LoginItemContract, WhatHoldsAlreadyIsNoFailure)
{
    this->set(false);
    this->expect(false, "switched off though it is off");
    this->set(true);
    this->set(true);
    this->expect(true, "switched on twice");
    this->set(false);
    this->set(false);
    this->expect(false, "switched off twice");
}

TYPED_TEST_P(LoginItemContract, WhatTheUserChangesElsewhereIsSeenAtTheNextQuestionAndCanBeUndone)
{
    this->system_.change(true);
    this->expect(true, "switched on elsewhere");
    this->set(false);
    this->expect(false, "switched off here");
    this->set(true);
    this->system_.change(false);
    this->expect(false, "switched off elsewhere");
    this->set(true);
    this->expect(true, "switched on here");
}

REGISTER_TYPED_TEST_SUITE_P(LoginItemContract, TheSessionStartsTheProgramFromWhenItIsSwitchedOnUntilItIsSwitchedOff,
                            WhatHoldsAlreadyIsNoFailure,
                            WhatTheUserChangesElsewhereIsSeenAtTheNextQuestionAndCanBeUndone);

} // namespace vantrel::test
