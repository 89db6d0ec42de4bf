#pragma once

#include "Platform/LoginItem.h"

#include <gtest/gtest.h>

#include <concepts>

/// What every implementation of `LoginItem` keeps to where the system refuses:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, LoginItemRefusalContract, System)`.
namespace vantrel::test {

/// A session that can't be made to start the program.
template <typename System>
concept RefusingLoginItemSystem = std::default_initializable<System> && requires(System system) {
    { system.item() } -> std::same_as<LoginItem &>;
};

template <RefusingLoginItemSystem System>
class LoginItemRefusalContract : public testing::Test {
protected:
    System system_;
};

TYPED_TEST_SUITE_P(LoginItemRefusalContract);

TYPED_TEST_P(LoginItemRefusalContract, WhatCanNotBeSwitchedOnHasAReasonAndStaysOff)
{
    EXPECT_FALSE(this->system_.item().isEnabled());
    const auto done = this->system_.item().setEnabled(true);
    ASSERT_FALSE(done.has_value());
    EXPECT_FALSE(done.error().message.isEmpty());
    EXPECT_FALSE(this->system_.item().isEnabled());
}

REGISTER_TYPED_TEST_SUITE_P(LoginItemRefusalContract, WhatCanNotBeSwitchedOnHasAReasonAndStaysOff);

} // namespace vantrel::test
