#pragma once

#include "VantrelKit/DecodingError.h"

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <expected>
#include <optional>

namespace vantrel {

/// A profile as its browser's own files show it.
struct DiscoveredProfile {
    /// The name that the browser shows.
    QString name;
    /// Chromium family: the profile folder's name inside the data folder. Firefox family: the folder's full path.
    QString folder;
    /// At most 128 pixels on its longer side; none when no picture was found, and always none for the Firefox family.
    std::optional<QByteArray> avatarPNG = std::nullopt;

    friend bool operator==(const DiscoveredProfile &, const DiscoveredProfile &) = default;
};

/// The members "name", "folder" and, where there is a picture, "avatarPNG" in Base64.
[[nodiscard]] QJsonObject toJson(const DiscoveredProfile &profile);

[[nodiscard]] std::expected<DiscoveredProfile, DecodingError> discoveredProfileFromJson(const QJsonValue &json);

} // namespace vantrel
