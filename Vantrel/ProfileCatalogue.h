#pragma once

#include "Vantrel/SavedState.h"
#include "VantrelKit/Browser.h"
#include "VantrelKit/Profile.h"

#include <QHash>
#include <QList>
#include <QSet>

namespace vantrel {

/// The installed browsers and their profiles at one moment, with the user's choices about them.
struct ProfileCatalogue {
    /// In the order in which they are shown.
    QList<Browser> browsers;
    /// In the user's order; also those of browsers that aren't installed now.
    QList<Profile> profiles;
    QSet<QString> hidden;
    QHash<QString, QString> customNames;

    /// The name without the user's doing: the private window's, else the browser's for the profile.
    [[nodiscard]] static QString defaultName(const Profile &profile);

    /// The name that the user sees: the one the user gave, else the default name.
    [[nodiscard]] QString displayName(const Profile &profile) const;

    /// The display name with the browser's before it.
    [[nodiscard]] QString title(const Profile &profile) const;

    /// The browser of a profile; null when it isn't installed. Valid as long as `browsers` isn't changed.
    [[nodiscard]] const Browser *browser(const Profile &profile) const;

    [[nodiscard]] bool isHidden(const Profile &profile) const;

    /// The profiles that can be opened: those of installed browsers.
    [[nodiscard]] QList<Profile> openable() const;

    friend bool operator==(const ProfileCatalogue &, const ProfileCatalogue &) = default;
};

} // namespace vantrel
