#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QVariantMap>

namespace vantrel {

struct LaunchLink;

/// What a launcher app is called and what its property list says.
class LauncherBundle {
public:
    LauncherBundle() = delete;

    /// The launcher's program, and its icon file without the ending.
    static constexpr QLatin1StringView executableName{"Launcher"};
    static constexpr QLatin1StringView iconName{"AppIcon"};
    /// Below which key of the property list the launcher finds its link.
    static constexpr QLatin1StringView linkKey{"VantrelLink"};

    /// Twelve hexadecimal digits that a profile's launchers bear on every system, always the same for the same id.
    [[nodiscard]] static QString digits(const QString &profileID);

    [[nodiscard]] static QString bundleIdentifier(const QString &profileID);

    /// A file name for a launcher of that title, with ".app". Long titles are cut to what file systems take.
    [[nodiscard]] static QString fileName(const QString &title);

    /// The whole property list. `version` is that of the program that makes the launcher.
    [[nodiscard]] static QVariantMap infoPlist(const QString &title, const QString &profileID, const LaunchLink &link,
                                               const QString &version);
};

} // namespace vantrel
