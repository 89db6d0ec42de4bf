#pragma once

#include "VantrelKit/DiscoveredProfile.h"
#include "VantrelKit/PictureReader.h"
#include "VantrelKit/ProfileDiscoveryError.h"

#include <QList>
#include <QString>

#include <expected>
#include <optional>

namespace vantrel {

/// Reads browsers' own files for the profiles that they have, without starting a browser. It keeps nothing: each call
/// reads the disk afresh. Any thread; calls block.
struct ProfileReader {
    using Result = std::expected<QList<DiscoveredProfile>, ProfileDiscoveryError>;

    /// The folder below which browsers keep their data, where one folder serves all of them, as on macOS.
    QString appSupportRoot;
    /// What makes a profile's picture; without it profiles come without pictures.
    PictureReader readPicture;
    QString sqlite3 = QStringLiteral("/usr/bin/sqlite3");

    /// The browser's folder below `appSupportRoot`; none for Safari and for unknown browsers.
    [[nodiscard]] std::optional<QString> dataFolder(const QString &bundleID) const;

    /// The profiles below `appSupportRoot`; empty for Safari and for unknown browsers.
    [[nodiscard]] Result discoverProfiles(const QString &bundleID) const;

    /// The profiles in a data folder of the browser, wherever the system keeps it.
    [[nodiscard]] Result discoverProfiles(const QString &bundleID, const QString &dataFolder) const;
};

} // namespace vantrel
