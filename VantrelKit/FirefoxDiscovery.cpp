#include "VantrelKit/FirefoxDiscovery.h"

#include "VantrelKit/DataFolder.h"
#include "VantrelKit/Paths.h"
#include "VantrelKit/ProfileGroups.h"
#include "VantrelKit/ProfilesIni.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// None when the file can't be read or isn't UTF-8.
std::optional<QString> readText(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    // Stateless, so that a character cut off at the end is an error and not awaited.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(file.readAll());
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

} // namespace

std::expected<QList<DiscoveredProfile>, ProfileDiscoveryError> firefoxProfiles(const QString &dataFolder,
                                                                               const QString &sqlite3)
{
    const auto entries = listDataFolder(dataFolder);
    if (!entries)
        return std::unexpected(entries.error());
    if (!*entries)
        return {};
    auto grouped = profileGroupRows(dataFolder, sqlite3);
    if (!grouped || !grouped->isEmpty())
        return grouped;
    const auto text = readText(joinedPath(dataFolder, u"profiles.ini"_s));
    return text ? parseProfilesINI(*text, dataFolder) : QList<DiscoveredProfile>();
}

} // namespace vantrel
