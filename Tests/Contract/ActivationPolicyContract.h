#pragma once

#include "Platform/ActivationPolicy.h"

#include <gtest/gtest.h>

#include <concepts>

/// What every implementation of `ActivationPolicy` keeps to where programs have a place among the running applications:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, ActivationPolicyContract, System)`. Whether the program comes to the front is
/// the system's to decide.
namespace vantrel::test {

/// The program, which the system shows in one way or the other.
template <typename System>
concept ActivationPolicySystem = std::default_initializable<System> && requires(System system) {
    { system.policy() } -> std::same_as<ActivationPolicy &>;
    /// Whether the system lists the program like any application, and not as one that only has a symbol: just one of
    /// them is true.
    { system.isRegular() } -> std::same_as<bool>;
    { system.isAccessory() } -> std::same_as<bool>;
};

template <ActivationPolicySystem System>
class ActivationPolicyContract : public testing::Test {
protected:
    void expect(bool isRegular)
    {
        EXPECT_EQ(system_.isRegular(), isRegular);
        EXPECT_EQ(system_.isAccessory(), !isRegular);
    }

    System system_;
};

TYPED_TEST_SUITE_P(ActivationPolicyContract);

TYPED_TEST_P(ActivationPolicyContract, TheProgramIsWhatItBecameLast)
{
    for (int time = 0; time < 2; ++time) {
        this->system_.policy().becomeRegular();
        this->expect(true);
        this->system_.policy().becomeAccessory();
        this->expect(false);
        this->system_.policy().becomeAccessory();
        this->expect(false);
    }
}

TYPED_TEST_P(ActivationPolicyContract, ComingToTheFrontMakesItNothingElse)
{
    this->system_.policy().becomeAccessory();
    this->system_.policy().activate();
    this->expect(false);
    this->system_.policy().becomeRegular();
    this->system_.policy().activate();
    this->expect(true);
}

REGISTER_TYPED_TEST_SUITE_P(ActivationPolicyContract, TheProgramIsWhatItBecameLast, ComingToTheFrontMakesItNothingElse);

} // namespace vantrel::test
