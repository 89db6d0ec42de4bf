#pragma once

#include "Platform/SafariBridge.h"
#include "Tests/VantrelKit/Printing.h"

#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <concepts>

/// What every implementation of `SafariBridge` keeps to without a user who lets the program control Safari:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, SafariBridgeContract, System)`.
namespace vantrel::test {

/// An application that is installed and doesn't run at first. Provides the event loop.
template <typename System>
concept SafariBridgeSystem = std::default_initializable<System> && requires(System system) {
    { system.bridge() } -> std::same_as<SafariBridge &>;
    { system.installed() } -> std::same_as<QString>;
    { system.url() } -> std::same_as<QUrl>;
    { system.unknown() } -> std::same_as<QString>;
    /// Ends the application, which may take a moment.
    { system.end() } -> std::same_as<void>;
};

template <SafariBridgeSystem System>
class SafariBridgeContract : public testing::Test {
protected:
    [[nodiscard]] std::shared_ptr<SafariApplication> connect(const QString &bundleID)
    {
        return system_.bridge().connect(bundleID, {});
    }

    [[nodiscard]] auto startHidden(const QUrl &url) { return QCoro::waitFor(system_.bridge().startHidden(url)); }

    System system_;
};

TYPED_TEST_SUITE_P(SafariBridgeContract);

TYPED_TEST_P(SafariBridgeContract, ThereIsNoConnectionToWhatIsNotInstalled)
{
    EXPECT_EQ(this->connect(this->system_.unknown()), nullptr);
}

TYPED_TEST_P(SafariBridgeContract, ThereIsAConnectionBeforeTheApplicationRunsWhichDoesNotStartIt)
{
    const auto application = this->connect(this->system_.installed());
    ASSERT_NE(application, nullptr);
    EXPECT_FALSE(application->isRunning());
    EXPECT_NE(this->connect(this->system_.installed()), nullptr);
    EXPECT_FALSE(application->isRunning());
}

TYPED_TEST_P(SafariBridgeContract, AConnectionTellsThatTheApplicationWasStartedAndHasEnded)
{
    const auto application = this->connect(this->system_.installed());
    ASSERT_NE(application, nullptr);
    const auto started = this->startHidden(this->system_.url());
    ASSERT_TRUE(started.has_value()) << started.error().message.toStdString();
    EXPECT_TRUE(QTest::qWaitFor([&] { return application->isRunning(); }, 20'000));
    EXPECT_TRUE(this->connect(this->system_.installed())->isRunning());
    this->system_.end();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !application->isRunning(); }, 20'000));
}

TYPED_TEST_P(SafariBridgeContract, WhatIsNotThereFailsToStartWithAReason)
{
    const auto started = this->startHidden(QUrl::fromLocalFile(QStringLiteral("/no/such/application.app")));
    ASSERT_FALSE(started.has_value());
    EXPECT_FALSE(started.error().message.isEmpty());
}

REGISTER_TYPED_TEST_SUITE_P(SafariBridgeContract, ThereIsNoConnectionToWhatIsNotInstalled,
                            ThereIsAConnectionBeforeTheApplicationRunsWhichDoesNotStartIt,
                            AConnectionTellsThatTheApplicationWasStartedAndHasEnded,
                            WhatIsNotThereFailsToStartWithAReason);

} // namespace vantrel::test
