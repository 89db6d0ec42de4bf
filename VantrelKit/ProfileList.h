#pragma once

#include "VantrelKit/LaunchLink.h"
#include "VantrelKit/Profile.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <optional>

/// The operations on the one list of profiles that keep it in the user's order. A browser's profiles always stand
/// together as one group; a list in which they don't is put right by the first change of that group. All are pure and
/// take time in proportion to the list's length.
namespace vantrel::ProfileList {

/// The list with a browser's group replaced by what was found now. Profiles that were known keep their places and take
/// the fresh record; those that are gone are dropped; new ones come before the first private window of the group.
[[nodiscard]] QList<Profile> merge(const QList<Profile> &fresh, const QString &browserBundleID,
                                   const QList<Profile> &current);

/// The list with rows of a browser's group moved. `positions` and `destination` count rows of the group, hidden ones
/// included; `destination` is the row before which the moved rows come, counted before they are taken out. Positions
/// outside the group are ignored.
[[nodiscard]] QList<Profile> move(const QList<Profile> &current, const QString &browserBundleID,
                                  const QSet<qsizetype> &positions, qsizetype destination);

/// The list with a browser's group replaced, in the place where the old group began, or at the end.
[[nodiscard]] QList<Profile> splice(const QString &browserBundleID, const QList<Profile> &group,
                                    const QList<Profile> &current);

/// The profile that a link names: by id, else by name, else by the name that the user gave it, else made from what the
/// link says, as long as that is well formed; none otherwise. `customNames` is keyed by profile id.
[[nodiscard]] std::optional<Profile> find(const LaunchLink &link, const QList<Profile> &profiles,
                                          const QHash<QString, QString> &customNames);

} // namespace vantrel::ProfileList
