#pragma once

#include "Platform/SavePanel.h"
#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

#include <concepts>

/// What every implementation of `SavePanel` keeps to when the user cancels, for choosing takes a person:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, SavePanelContract, System)`.
namespace vantrel::test {

/// A user who cancels. Provides the event loop.
template <typename System>
concept CancelledSavePanelSystem = std::default_initializable<System> && requires(System system) {
    { system.panel() } -> std::same_as<SavePanel &>;
    /// Cancels the panel that is open.
    { system.cancel() } -> std::same_as<void>;
    /// Makes an end to the implementation.
    { system.destroyPanel() } -> std::same_as<void>;
};

template <CancelledSavePanelSystem System>
class SavePanelContract : public testing::Test {
protected:
    using Answer = std::optional<QString>;

    [[nodiscard]] QCoro::Task<Answer> ask(const QString &fileName)
    {
        return system_.panel().ask({.title = QStringLiteral("Title"),
                                    .message = QStringLiteral("Message"),
                                    .confirmButton = QStringLiteral("Confirm"),
                                    .folder = QStringLiteral("/"),
                                    .fileName = fileName});
    }

    System system_;
};

TYPED_TEST_SUITE_P(SavePanelContract);

TYPED_TEST_P(SavePanelContract, WhoCancelsHasChosenNothing)
{
    for (const QString &fileName : {QStringLiteral("A.app"), QString(), QStringLiteral("A 東京 %.app")}) {
        auto task = this->ask(fileName);
        this->system_.cancel();
        EXPECT_EQ(QCoro::waitFor(std::move(task)), std::nullopt) << fileName.toStdString();
    }
}

TYPED_TEST_P(SavePanelContract, TheNextQuestionCancelsTheOneThatIsOpen)
{
    auto first = this->ask(QStringLiteral("A.app"));
    auto second = this->ask(QStringLiteral("B.app"));
    EXPECT_EQ(QCoro::waitFor(std::move(first)), std::nullopt);
    this->system_.cancel();
    EXPECT_EQ(QCoro::waitFor(std::move(second)), std::nullopt);
}

TYPED_TEST_P(SavePanelContract, AQuestionIsCancelledWhenTheObjectIsGone)
{
    auto task = this->ask(QStringLiteral("A.app"));
    this->system_.destroyPanel();
    EXPECT_EQ(QCoro::waitFor(std::move(task)), std::nullopt);
}

REGISTER_TYPED_TEST_SUITE_P(SavePanelContract, WhoCancelsHasChosenNothing, TheNextQuestionCancelsTheOneThatIsOpen,
                            AQuestionIsCancelledWhenTheObjectIsGone);

} // namespace vantrel::test
