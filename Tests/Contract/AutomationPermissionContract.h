#pragma once

#include "Platform/AutomationPermission.h"
#include "Tests/VantrelKit/Printing.h"

#include <QDeadlineTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <concepts>

/// What every implementation of `AutomationPermission` keeps to without a user who answers:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, AutomationPermissionContract, System)`.
namespace vantrel::test {

/// A system on which there are applications that don't run. Provides the event loop.
template <typename System>
concept AutomationPermissionSystem = std::default_initializable<System> && requires(System system) {
    { system.permission() } -> std::same_as<AutomationPermission &>;
    /// Is installed and doesn't run.
    { system.idle() } -> std::same_as<QString>;
    { system.unknown() } -> std::same_as<QString>;
};

template <AutomationPermissionSystem System>
class AutomationPermissionContract : public testing::Test {
protected:
    /// Of what the user has never been asked about, and can't be.
    void expectNoDecision(const QString &bundleID)
    {
        const QDeadlineTimer deadline(patience);
        const QThread *caller = QThread::currentThread();
        const QThread *answered = nullptr;
        auto task = system_.permission().request(bundleID);
        const auto answer = QCoro::waitFor(task.then([&answered](const std::optional<int> &number) {
            answered = QThread::currentThread();
            return number;
        }));
        EXPECT_NE(answer, AutomationPermission::granted) << bundleID.toStdString();
        EXPECT_NE(answer, AutomationPermission::denied) << bundleID.toStdString();
        EXPECT_EQ(answered, caller);
        EXPECT_FALSE(deadline.hasExpired()) << bundleID.toStdString();
    }

    /// Longer than any answer takes for which nobody is asked.
    static constexpr qint64 patience = 10'000;

    System system_;
};

TYPED_TEST_SUITE_P(AutomationPermissionContract);

TYPED_TEST_P(AutomationPermissionContract, WhatDoesNotRunIsNeitherAllowedNorDenied)
{
    this->expectNoDecision(this->system_.idle());
}

TYPED_TEST_P(AutomationPermissionContract, WhatIsNotInstalledIsNeitherAllowedNorDenied)
{
    this->expectNoDecision(this->system_.unknown());
}

TYPED_TEST_P(AutomationPermissionContract, QuestionsAreAnsweredSideBySide)
{
    auto first = this->system_.permission().request(this->system_.idle());
    auto second = this->system_.permission().request(this->system_.unknown());
    const auto later = QCoro::waitFor(std::move(second));
    const auto earlier = QCoro::waitFor(std::move(first));
    EXPECT_NE(earlier, AutomationPermission::granted);
    EXPECT_NE(later, AutomationPermission::granted);
}

REGISTER_TYPED_TEST_SUITE_P(AutomationPermissionContract, WhatDoesNotRunIsNeitherAllowedNorDenied,
                            WhatIsNotInstalledIsNeitherAllowedNorDenied, QuestionsAreAnsweredSideBySide);

} // namespace vantrel::test
