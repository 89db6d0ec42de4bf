#pragma once

#include "VantrelKit/BrowserFamily.h"

#include <QString>

#include <optional>
#include <variant>

namespace vantrel {

/// How a profile is opened. One of six cases; made by the functions named after them.
struct ProfileTarget {
    struct SafariProfile {
        /// As Safari shows it.
        QString name;
        /// Position among Safari's profiles as read from Safari; -1 when unknown.
        qint64 index = -1;

        friend bool operator==(const SafariProfile &, const SafariProfile &) = default;
    };
    struct SafariPrivate {
        friend bool operator==(const SafariPrivate &, const SafariPrivate &) = default;
    };
    struct Chromium {
        /// The profile folder's name inside the browser's data folder; "." where the data folder itself is the profile.
        QString folder;

        friend bool operator==(const Chromium &, const Chromium &) = default;
    };
    struct ChromiumPrivate {
        friend bool operator==(const ChromiumPrivate &, const ChromiumPrivate &) = default;
    };
    struct Firefox {
        /// The profile folder's path, as the browser's own list of profiles gives it.
        QString path;

        friend bool operator==(const Firefox &, const Firefox &) = default;
    };
    struct FirefoxPrivate {
        friend bool operator==(const FirefoxPrivate &, const FirefoxPrivate &) = default;
    };

    std::variant<SafariProfile, SafariPrivate, Chromium, ChromiumPrivate, Firefox, FirefoxPrivate> value;

    [[nodiscard]] static ProfileTarget safariProfile(QString name, qint64 index);
    [[nodiscard]] static ProfileTarget safariPrivate();
    [[nodiscard]] static ProfileTarget chromium(QString folder);
    [[nodiscard]] static ProfileTarget chromiumPrivate();
    [[nodiscard]] static ProfileTarget firefox(QString path);
    [[nodiscard]] static ProfileTarget firefoxPrivate();

    /// The private window of a family.
    [[nodiscard]] static ProfileTarget privateWindow(BrowserFamily family);

    /// The target that a key names in a browser of this family; none for a key that isn't well formed: without a colon,
    /// with nothing after it, or with a Chromium folder that isn't a single folder's name.
    [[nodiscard]] static std::optional<ProfileTarget> fromKey(const QString &key, BrowserFamily family);

    /// What tells the target from the others of its browser, and stays when a profile is renamed or moves in a menu:
    /// "chromium:Profile 1", "private", ….
    [[nodiscard]] QString key() const;

    /// True for a private window.
    [[nodiscard]] bool isPrivate() const;

    friend bool operator==(const ProfileTarget &, const ProfileTarget &) = default;
};

[[nodiscard]] size_t qHash(const ProfileTarget &target, size_t seed = 0);

} // namespace vantrel
