#pragma once

#include "Platform/FolderAccess.h"
#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

#include <concepts>

/// What every implementation of `FolderAccess` keeps to when the user cancels, for confirming takes a person:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, FolderAccessContract, System)`.
namespace vantrel::test {

/// A user who cancels. Provides the event loop.
template <typename System>
concept CancelledFolderAccessSystem = std::default_initializable<System> && requires(System system) {
    { system.access() } -> std::same_as<FolderAccess &>;
    /// Cancels the panel that is open.
    { system.cancel() } -> std::same_as<void>;
};

template <CancelledFolderAccessSystem System>
class FolderAccessContract : public testing::Test {
protected:
    System system_;
};

TYPED_TEST_SUITE_P(FolderAccessContract);

TYPED_TEST_P(FolderAccessContract, WhoCancelsHasNotConfirmed)
{
    for (const QString &folder : {QStringLiteral("/"), QStringLiteral("/no/such/folder")}) {
        auto task = this->system_.access().ask(
            {.folder = folder, .message = QStringLiteral("Message"), .confirmButton = QStringLiteral("Confirm")});
        this->system_.cancel();
        EXPECT_FALSE(QCoro::waitFor(std::move(task))) << folder.toStdString();
    }
}

REGISTER_TYPED_TEST_SUITE_P(FolderAccessContract, WhoCancelsHasNotConfirmed);

} // namespace vantrel::test
