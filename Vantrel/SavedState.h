#pragma once

#include "VantrelKit/DecodingError.h"
#include "VantrelKit/Profile.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <expected>
#include <optional>

namespace vantrel {

/// What Vantrel keeps between runs: the content of the file "profiles.json".
struct SavedState {
    /// All profiles in the user's order.
    QList<Profile> profiles;
    /// The ids of profiles that the user doesn't want to see in the menu.
    QSet<QString> hidden;
    /// The names that the user gave, by profile id.
    QHash<QString, QString> customNames;
    /// The Safari browsers whose profiles have been searched, by bundle identifier.
    QSet<QString> searchedSafari;

    /// The file in the user's data folder.
    [[nodiscard]] static QString defaultPath();

    /// All four members must be there and every profile must be readable.
    [[nodiscard]] static std::expected<SavedState, DecodingError> decode(const QByteArray &json);

    /// The state in a file; the state of a first start when there is no file or it can't be opened.
    [[nodiscard]] static std::expected<SavedState, DecodingError> read(const QString &path);

    /// Compact JSON with exactly these four members.
    [[nodiscard]] QByteArray encode() const;

    /// Writes the file in one step, so that a reader or a crash never meets half of it, and makes its folder. Fails
    /// with the system's reason.
    [[nodiscard]] std::expected<void, QString> write(const QString &path) const;

    friend bool operator==(const SavedState &, const SavedState &) = default;
};

} // namespace vantrel
