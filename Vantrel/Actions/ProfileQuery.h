#pragma once

#include "Vantrel/Actions/ProfileTitles.h"

namespace vantrel {

/// Finds profiles for those who let the user pick one. Hidden profiles are among them: they are hidden from the menu.
/// Main thread only.
class ProfileQuery {
public:
    /// `titles` must outlive it.
    explicit ProfileQuery(ProfileTitles &titles) : titles_(titles) {}

    /// The profiles with these ids, in the order given. Ids without a profile are left out.
    [[nodiscard]] QList<ProfileEntity> entities(const QStringList &ids) const;

    /// The profiles of all installed browsers, browser by browser.
    [[nodiscard]] QList<ProfileEntity> suggestedEntities() const;

    /// Those of the suggested ones with the text somewhere in their full title, whatever its case and diacritics. None
    /// for a text without any character that counts.
    [[nodiscard]] QList<ProfileEntity> entitiesMatching(const QString &text) const;

private:
    ProfileTitles &titles_;
};

} // namespace vantrel
