#pragma once

#include "Platform/AccessibilityTrust.h"

#include <QDeadlineTimer>

#include <gtest/gtest.h>

#include <concepts>

/// What every implementation of `AccessibilityTrust` keeps to without a user who answers:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, AccessibilityTrustContract, System)`.
namespace vantrel::test {

/// A program that the user trusts, so that there is nothing to ask.
template <typename System>
concept TrustedSystem = std::default_initializable<System> && requires(System system) {
    { system.trust() } -> std::same_as<AccessibilityTrust &>;
};

template <TrustedSystem System>
class AccessibilityTrustContract : public testing::Test {
protected:
    /// Longer than any answer takes for which nobody is asked.
    static constexpr qint64 patience = 10'000;

    System system_;
};

TYPED_TEST_SUITE_P(AccessibilityTrustContract);

TYPED_TEST_P(AccessibilityTrustContract, WhoIsTrustedIsSoHoweverOftenAndInWhicheverWayItIsAsked)
{
    const QDeadlineTimer deadline(this->patience);
    for (int time = 0; time < 3; ++time) {
        EXPECT_TRUE(this->system_.trust().isTrusted());
        EXPECT_TRUE(this->system_.trust().isTrustedElseAsk());
    }
    EXPECT_FALSE(deadline.hasExpired()) << "Somebody was asked.";
}

REGISTER_TYPED_TEST_SUITE_P(AccessibilityTrustContract, WhoIsTrustedIsSoHoweverOftenAndInWhicheverWayItIsAsked);

} // namespace vantrel::test
