#pragma once

#include "Platform/ActivationSource.h"
#include "Platform/ProfileAnswers.h"
#include "Vantrel/Actions/ProfileQuery.h"
#include "Vantrel/Actions/ProfileSearch.h"
#include "Vantrel/DiscoveryRuns.h"
#include "Vantrel/Pictures/ProfileIconCache.h"
#include "Vantrel/ProfileOpener.h"

namespace vantrel {

/// Answers other programs out of the store, never from a disk. When such a question is what has started the app for the
/// first time, the answer waits until the browsers were read, and so does the opening of a profile that isn't known
/// while they are being read. Main thread only; lives as long as the app.
class ProfileRequests final : public ProfileAnswers {
public:
    /// What it works with; all must outlive it.
    struct Environment {
        const ProfileStore &store;
        DiscoveryRuns &discovery;
        ProfileOpener &opener;
        ProfileIconCache &icons;
        ActivationSource &activation;
        /// Shows the app's own list.
        std::function<void()> showList;
    };

    explicit ProfileRequests(Environment environment);

    /// What the answers are made of.
    [[nodiscard]] ProfileTitles &titles() { return titles_; }

    [[nodiscard]] QCoro::Task<QList<Found>> search(QStringList terms, qsizetype limit) override;
    [[nodiscard]] QCoro::Task<QList<Found>> found(QStringList ids) override;
    [[nodiscard]] QCoro::Task<Outcome> openFound(QString id, Activation activation) override;
    void showList(const Activation &activation) override;
    [[nodiscard]] QCoro::Task<QList<Listed>> list() override;
    [[nodiscard]] QCoro::Task<Outcome> open(QString profileID, QStringList links, Activation activation) override;

private:
    [[nodiscard]] QCoro::Task<Outcome> openLinks(QString profileID, QList<QUrl> links, Activation activation);
    [[nodiscard]] QList<Found> described(const QList<ProfileSearch::Match> &matches);
    void note(const Activation &activation);

    Environment environment_;
    ProfileTitles titles_;
    ProfileQuery query_{titles_};
    ProfileSearch search_{titles_};
};

} // namespace vantrel
