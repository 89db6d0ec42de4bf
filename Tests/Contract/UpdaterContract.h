#pragma once

#include "Platform/Updater.h"

#include <gtest/gtest.h>

#include <concepts>
#include <vector>

/// What every implementation of `Updater` keeps to before it looks for updates, which shows windows:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, UpdaterContract, System)`.
namespace vantrel::test {

/// A program that can be updated, with nothing under way.
template <typename System>
concept UpdaterSystem = std::default_initializable<System> && requires(System system) {
    { system.updater() } -> std::same_as<Updater &>;
};

template <UpdaterSystem System>
class UpdaterContract : public testing::Test {
protected:
    System system_;
};

TYPED_TEST_SUITE_P(UpdaterContract);

TYPED_TEST_P(UpdaterContract, ThePresentValueIsToldFromWithin)
{
    std::vector<bool> told;
    Updater &updater = this->system_.updater();
    const bool before = updater.canCheckForUpdates();
    updater.observeCanCheckForUpdates([&](bool canCheck) { told.push_back(canCheck); });
    EXPECT_EQ(told, std::vector<bool>{before});
    EXPECT_TRUE(before) << "Nothing is under way.";
}

TYPED_TEST_P(UpdaterContract, WhetherItChecksByItselfIsKept)
{
    for (const bool checks : {true, false, true}) {
        this->system_.updater().setAutomaticallyChecksForUpdates(checks);
        EXPECT_EQ(this->system_.updater().automaticallyChecksForUpdates(), checks);
    }
}

REGISTER_TYPED_TEST_SUITE_P(UpdaterContract, ThePresentValueIsToldFromWithin, WhetherItChecksByItselfIsKept);

} // namespace vantrel::test
