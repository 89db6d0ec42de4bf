#pragma once

#include "Platform/ProfileAnswers.h"
#include "Vantrel/Actions/ProfileTitles.h"
#include "Vantrel/Actions/SearchTerms.h"

namespace vantrel {

/// Finds profiles for the search of a desktop. Profiles that are hidden from the menu are left out, for the user
/// doesn't want to see them. Main thread only.
class ProfileSearch {
public:
    using Fit = ProfileAnswers::Found::Fit;

    /// A profile to open, with links to open in it.
    struct Match {
        QString profileID;
        QList<QUrl> links;
        Fit fit = Fit::somewhere;

        /// The text by which a desktop gives the match back.
        [[nodiscard]] QString id() const;
        /// None for a text that is no match's id; whether the profile still exists is another matter.
        [[nodiscard]] static std::optional<Match> of(const QString &id);

        friend bool operator==(const Match &, const Match &) = default;
    };

    /// `titles` must outlive it.
    explicit ProfileSearch(ProfileTitles &titles) : titles_(titles) {}

    /// The profiles whose full title contains each of the words, at most that many; no words and no links find nothing,
    /// links alone find every profile. Better fits come first, which counts because desktops show no more than the
    /// first few; equally good ones stand in the list's order.
    [[nodiscard]] QList<Match> matches(const SearchTerms &terms, qsizetype limit) const;

private:
    ProfileTitles &titles_;
};

} // namespace vantrel
