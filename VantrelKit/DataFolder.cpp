#include "VantrelKit/DataFolder.h"

#include <QFile>

#include <filesystem>

namespace vantrel {
namespace {

namespace fs = std::filesystem;

/// None for hidden entries, and for names that aren't text and so could not be handed back to the system.
std::optional<FolderEntry> visibleEntry(const fs::directory_entry &entry)
{
    const std::string encodedPath = entry.path().native();
    const std::string encodedName = entry.path().filename().native();
    const QByteArray nameBytes = QByteArray::fromStdString(encodedName);
    const QString name = QFile::decodeName(nameBytes);
    if (name.startsWith(u'.') || QFile::encodeName(name) != nameBytes)
        return std::nullopt;
    std::error_code ignored;
    return FolderEntry{name, QFile::decodeName(QByteArray::fromStdString(encodedPath)), entry.is_directory(ignored)};
}

} // namespace

std::optional<ProfileDiscoveryError> discoveryError(const std::error_code &error, const QString &folder)
{
    if (error == std::errc::no_such_file_or_directory)
        return std::nullopt;
    if (error == std::errc::operation_not_permitted || error == std::errc::permission_denied)
        return ProfileDiscoveryError::accessDenied(folder);
    return ProfileDiscoveryError::readFailed(folder, QString::fromLocal8Bit(error.message()));
}

std::expected<std::optional<QList<FolderEntry>>, ProfileDiscoveryError> listDataFolder(const QString &folder)
{
    QList<FolderEntry> entries;
    std::error_code error;
    fs::directory_iterator iterator(QFile::encodeName(folder).toStdString(), error);
    while (!error && iterator != fs::directory_iterator()) {
        if (auto entry = visibleEntry(*iterator))
            entries.append(*std::move(entry));
        iterator.increment(error);
    }
    if (!error)
        return entries;
    if (auto failure = discoveryError(error, folder))
        return std::unexpected(*std::move(failure));
    return std::nullopt;
}

} // namespace vantrel
