#pragma once

#include "Vantrel/Pictures/ProfileIcon.h"

namespace vantrel {

/// A profile as other parts of the system know it: what they show, and the id by which they give it back.
struct ProfileEntity {
    QString id;
    /// The name that the user sees.
    QString title;
    /// The browser's name; its identifier when it isn't installed.
    QString browser;
    /// What its round picture is drawn from. It is drawn where it is shown, by a ProfileIconCache: a search may find
    /// thousands of profiles.
    ProfileIcon avatar;
    /// The browser and the title, as the user reads them: "Google Chrome – Work".
    QString displayRepresentation;

    friend bool operator==(const ProfileEntity &, const ProfileEntity &) = default;
};

} // namespace vantrel
