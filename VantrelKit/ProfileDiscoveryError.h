#pragma once

#include <QString>

#include <cstdint>

namespace vantrel {

/// Why a browser's profiles can't be read.
struct ProfileDiscoveryError {
    enum class Kind : std::uint8_t {
        /// The folder exists, but the system refuses to list it.
        accessDenied,
        /// Listing the folder failed for another reason.
        readFailed,
    };

    Kind kind = Kind::readFailed;
    /// The folder, as a plain path.
    QString path;
    /// The system's own words; empty for `accessDenied`.
    QString reason;

    [[nodiscard]] static ProfileDiscoveryError accessDenied(QString path);
    [[nodiscard]] static ProfileDiscoveryError readFailed(QString path, QString reason);

    friend bool operator==(const ProfileDiscoveryError &, const ProfileDiscoveryError &) = default;
};

} // namespace vantrel
