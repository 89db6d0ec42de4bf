#pragma once

#include "Platform/ActionAnswers.h"
#include "Vantrel/Actions/OpenProfileIntent.h"
#include "Vantrel/Actions/ProfileQuery.h"
#include "Vantrel/DiscoveryRuns.h"
#include "Vantrel/Pictures/ProfileIconCache.h"

namespace vantrel {

/// Answers the system's actions by the query and the intents. When an action is what has started the app for the first
/// time, the answer waits until the browsers were read, and so does the opening of a profile that isn't known while
/// they are being read. Main thread only; lives as long as the app.
class ActionRequests final : public ActionAnswers {
public:
    /// What it works with; all must outlive it.
    struct Environment {
        const ProfileStore &store;
        DiscoveryRuns &discovery;
        ProfileOpener &opener;
        ProfileTitles &titles;
        ProfileIconCache &icons;
    };

    explicit ActionRequests(const Environment &environment) : environment_(environment), query_(environment.titles) {}

    [[nodiscard]] Profiles profiles(QStringList ids) override;
    [[nodiscard]] Profiles suggestedProfiles() override;
    [[nodiscard]] Profiles profilesMatching(QString text) override;
    [[nodiscard]] QCoro::Task<Outcome> openProfile(QString id) override;
    [[nodiscard]] QCoro::Task<Outcome> openLinks(QList<QUrl> links, QString profileID) override;

private:
    [[nodiscard]] QList<SystemProfile> drawn(const QList<ProfileEntity> &entities);
    [[nodiscard]] IntentEnvironment intentEnvironment() { return {environment_.store, environment_.opener}; }

    Environment environment_;
    ProfileQuery query_;
};

} // namespace vantrel
