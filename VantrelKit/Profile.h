#pragma once

#include "VantrelKit/Browser.h"
#include "VantrelKit/ProfileTarget.h"

#include <QByteArray>

#include <optional>

namespace vantrel {

/// One thing that can be opened: a profile of a browser, or a browser's private window.
struct Profile {
    QString browserBundleID;
    /// The profile's name in its browser; empty for a private window.
    QString name;
    ProfileTarget target;
    /// The profile's picture; none when the browser has none for it.
    std::optional<QByteArray> avatarPNG = std::nullopt;

    /// The private window of a browser; an unknown browser is taken for one of the Chromium family.
    [[nodiscard]] static Profile privateWindow(const QString &browserBundleID);

    /// The key by which everything else knows the profile. It stays when the name or the picture changes.
    [[nodiscard]] QString id() const;

    friend bool operator==(const Profile &, const Profile &) = default;
};

[[nodiscard]] size_t qHash(const Profile &profile, size_t seed = 0);

/// The profile with its browser, "Google Chrome – Work". `displayName` is the name that the user sees; a browser that
/// is not among `browsers` is named by its identifier.
[[nodiscard]] QString displayTitle(const Profile &profile, const QList<Browser> &browsers, const QString &displayName);

} // namespace vantrel
