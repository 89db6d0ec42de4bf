#pragma once

#include "Vantrel/Actions/OpenProfileIntent.h"

namespace vantrel {

/// The action that opens web links in a profile; without links it opens the profile.
struct OpenLinksInProfileIntent {
    using Result = OpenProfileIntent::Result;

    QList<QUrl> links;
    ProfileEntity profile;

    [[nodiscard]] static QString title();
    [[nodiscard]] static QString linksTitle();
    [[nodiscard]] static QString profileTitle();
    /// What it does, with the parameters' values or places for them.
    [[nodiscard]] static QString summary(const QString &links, const QString &profile);

    /// As OpenProfileIntent's; fails for `profile`.
    [[nodiscard]] QCoro::Task<Result> perform(const IntentEnvironment &environment) const;
};

} // namespace vantrel
