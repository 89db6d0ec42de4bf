#pragma once

#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

namespace vantrel {

struct Profile;

/// A link of Vantrel's own scheme, which names a profile and the web links to open in it:
/// `vantrel://?browserBundleIdentifier=…&profileName=…&profile=…&url=…`.
struct LaunchLink {
    QString browserBundleID;
    /// Empty when the link names the profile by its id alone.
    QString profileName;
    std::optional<QString> profileID;
    /// Only links that may be handed to a browser.
    QList<QUrl> urls;

    /// The link of a profile, without web links.
    [[nodiscard]] static LaunchLink forProfile(const Profile &profile);

    /// None when the URL is no profile link: of another scheme, without a query, a browser or a profile.
    [[nodiscard]] static std::optional<LaunchLink> parse(const QUrl &url);
    [[nodiscard]] static std::optional<LaunchLink> parse(const QString &text);

    /// The link as text, which holds ASCII only.
    [[nodiscard]] QString text() const;

    friend bool operator==(const LaunchLink &, const LaunchLink &) = default;
};

} // namespace vantrel
