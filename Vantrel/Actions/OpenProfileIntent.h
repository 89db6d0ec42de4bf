#pragma once

#include "Vantrel/Actions/NeedsValueError.h"
#include "Vantrel/Actions/ProfileEntity.h"
#include "Vantrel/ProfileOpener.h"

#include <expected>

namespace vantrel {

/// What intents work with; all must outlive what is being performed.
struct IntentEnvironment {
    const ProfileStore &store;
    ProfileOpener &opener;
};

/// The action that opens a profile.
struct OpenProfileIntent {
    using Result = std::expected<void, NeedsValueError>;

    ProfileEntity target;

    [[nodiscard]] static QString title();
    [[nodiscard]] static QString targetTitle();
    /// What it does, with the parameter's value or a place for it.
    [[nodiscard]] static QString summary(const QString &target);

    /// Done when the opening has ended, well or with a failure that the opener has shown. The intent itself may go
    /// before. Fails for `target` when the profile isn't in the store any more. Main thread only.
    [[nodiscard]] QCoro::Task<Result> perform(const IntentEnvironment &environment) const;
};

} // namespace vantrel
