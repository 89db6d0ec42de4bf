#include "VantrelKit/ProfileGroups.h"

#include "VantrelKit/DataFolder.h"
#include "VantrelKit/JsonFile.h"
#include "VantrelKit/Paths.h"

#include <QFileInfo>
#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The database with the smallest name; none when there is none.
std::optional<QString> database(const QList<FolderEntry> &entries)
{
    const FolderEntry *first = nullptr;
    for (const FolderEntry &entry : entries) {
        const bool isDatabase = QFileInfo(entry.name).suffix().compare("sqlite"_L1, Qt::CaseInsensitive) == 0;
        if (isDatabase && (!first || entry.name < first->name))
            first = &entry;
    }
    return first ? std::optional(first->path) : std::nullopt;
}

/// What the program prints, empty when it fails.
QByteArray runQuery(const QString &sqlite3, const QString &database)
{
    QProcess process;
    process.setProgram(sqlite3);
    process.setArguments({u"-readonly"_s, u"-json"_s, database, u"select path, name from Profiles"_s});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QIODevice::ReadOnly);
    // Reads the output all the while, so that a long one can't stall the program.
    const bool finished = process.waitForFinished(-1);
    if (!finished || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {};
    return process.readAllStandardOutput();
}

/// One row wrongly shaped makes all of them unreadable.
QList<DiscoveredProfile> decodeRows(const QByteArray &output, const QString &dataFolder)
{
    const auto root = json::parse(output);
    simdjson::dom::array rows;
    if (!root || root->get(rows) != simdjson::SUCCESS)
        return {};
    QList<DiscoveredProfile> profiles;
    for (const simdjson::dom::element row : rows) {
        simdjson::dom::object object;
        std::optional<QString> path;
        std::optional<QString> name;
        if (row.get(object) != simdjson::SUCCESS || !json::readText(object, "path", path) || !path ||
            !json::readText(object, "name", name))
            return {};
        const bool hasName = name && !name->isEmpty();
        profiles.append({hasName ? *name : lastPathComponent(*path), joinedPath(dataFolder, *path)});
    }
    return profiles;
}

} // namespace

std::expected<QList<DiscoveredProfile>, ProfileDiscoveryError> profileGroupRows(const QString &dataFolder,
                                                                                const QString &sqlite3)
{
    const auto listed = listDataFolder(joinedPath(dataFolder, u"Profile Groups"_s));
    if (!listed)
        return std::unexpected(listed.error());
    const auto &entries = *listed;
    const auto path = entries ? database(*entries) : std::nullopt;
    if (!path)
        return {};
    return decodeRows(runQuery(sqlite3, *path), dataFolder);
}

} // namespace vantrel
