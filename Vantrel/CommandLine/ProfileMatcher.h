#pragma once

#include "Vantrel/ProfileCatalogue.h"

#include <QStringList>

#include <expected>

namespace vantrel {

/// Why a text names no profile, in words for the user, with the profiles that could be meant.
struct MatchFailure {
    QString message;

    friend bool operator==(const MatchFailure &, const MatchFailure &) = default;
};

/// The profile that a user names by its id, its link, its full title, or a display name that only one profile has.
[[nodiscard]] std::expected<Profile, MatchFailure> matchProfile(const QString &text, const ProfileCatalogue &catalogue);

/// The browsers that must be searched to match the text: those of an id or a link, else all known ones.
[[nodiscard]] QStringList browsersToSearch(const QString &text);

/// True for a text that is a link of our scheme, well formed or not.
[[nodiscard]] bool isProfileLink(const QString &text);

} // namespace vantrel
