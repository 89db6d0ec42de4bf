#pragma once

#include "VantrelKit/ProfileDiscoveryError.h"

#include <QList>
#include <QString>

#include <expected>
#include <optional>
#include <system_error>

namespace vantrel {

/// One thing directly in a folder.
struct FolderEntry {
    QString name;
    QString path;
    /// Links are followed; false when that can't be told.
    bool isDirectory = false;

    friend bool operator==(const FolderEntry &, const FolderEntry &) = default;
};

/// What a folder holds, without hidden entries, in the system's order; none when there is no such folder. Any thread.
[[nodiscard]] std::expected<std::optional<QList<FolderEntry>>, ProfileDiscoveryError>
listDataFolder(const QString &folder);

/// What an error met while listing `folder` means: none when the folder doesn't exist, which is no error.
[[nodiscard]] std::optional<ProfileDiscoveryError> discoveryError(const std::error_code &error, const QString &folder);

} // namespace vantrel
