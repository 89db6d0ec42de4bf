#pragma once

#include "Platform/AccessibilityTrust.h"
#include "Platform/RunningApplications.h"
#include "Platform/SafariBridge.h"
#include "Vantrel/Safari/MenuReader.h"
#include "Vantrel/SafariSearch.h"

namespace vantrel::Safari {

/// Finds Safari's profiles in its menu. Main thread only.
class ProfileFinder final : public SafariSearch {
public:
    /// What it works with; all must outlive it.
    struct Environment {
        MenuReader &menus;
        SafariBridge &bridge;
        AccessibilityTrust &accessibility;
        const RunningApplications &runningApplications;
        Clock &clock;
        LogSink &log;
    };

    explicit ProfileFinder(const Environment &environment);

    [[nodiscard]] QCoro::Task<SafariSearch::Result> findProfiles(Browser browser) override;

private:
    [[nodiscard]] QCoro::Task<Safari::Result<QStringList>> readNames(Browser browser);
    [[nodiscard]] QCoro::Task<Safari::Result<>> startIfNeeded(Browser browser);
    [[nodiscard]] SafariSearch::Result refusal(const Failure &failure) const;

    Environment environment_;
    LogChannel log_;
};

} // namespace vantrel::Safari
