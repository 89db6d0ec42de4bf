#include "VantrelKit/ChromiumDiscovery.h"

#include "VantrelKit/ChromiumAvatar.h"
#include "VantrelKit/ChromiumLocalState.h"
#include "VantrelKit/ChromiumPreferences.h"
#include "VantrelKit/DecimalInteger.h"
#include "VantrelKit/Paths.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr auto numberedPrefix = "Profile "_L1;

QString chromiumProfileName(const FolderEntry &folder, const ChromiumLocalState::Info &info)
{
    if (info.name && !info.name->isEmpty())
        return *info.name;
    const auto preferences = ChromiumPreferences::read(joinedPath(folder.path, u"Preferences"_s));
    if (preferences && preferences->name && !preferences->name->isEmpty())
        return *preferences->name;
    return folder.name;
}

DiscoveredProfile readProfile(const FolderEntry &folder, const QString &dataFolder,
                              const ChromiumLocalState &localState, const PictureReader &readPicture)
{
    const ChromiumLocalState::Info info = localState.infoCache.value(folder.name);
    DiscoveredProfile profile{chromiumProfileName(folder, info), folder.name};
    if (readPicture)
        profile.avatarPNG = chromiumAvatarPNG(folder.path, dataFolder, info.avatarIcon, readPicture);
    return profile;
}

ChromiumLocalState readLocalState(const QString &dataFolder)
{
    return ChromiumLocalState::read(joinedPath(dataFolder, u"Local State"_s)).value_or(ChromiumLocalState());
}

} // namespace

qint64 folderRank(const QString &folderName)
{
    constexpr qint64 last = std::numeric_limits<qint64>::max();
    if (folderName == "Default"_L1)
        return 0;
    const auto number = decimalInteger(QStringView(folderName).mid(numberedPrefix.size()));
    return number && *number < last ? *number + 1 : last;
}

QList<FolderEntry> chromiumProfileFolders(const QList<FolderEntry> &entries)
{
    QList<FolderEntry> folders;
    std::ranges::copy_if(entries, std::back_inserter(folders), [](const FolderEntry &entry) {
        return entry.isDirectory && (entry.name == "Default"_L1 || entry.name.startsWith(numberedPrefix));
    });
    std::ranges::stable_sort(folders, {}, [](const FolderEntry &folder) { return folderRank(folder.name); });
    return folders;
}

std::expected<QList<DiscoveredProfile>, ProfileDiscoveryError> chromiumProfiles(const QString &dataFolder,
                                                                                const PictureReader &readPicture)
{
    const auto listed = listDataFolder(dataFolder);
    if (!listed)
        return std::unexpected(listed.error());
    const auto &entries = *listed;
    if (!entries)
        return {};
    const ChromiumLocalState localState = readLocalState(dataFolder);
    QList<DiscoveredProfile> profiles;
    for (const FolderEntry &folder : chromiumProfileFolders(*entries))
        profiles.append(readProfile(folder, dataFolder, localState, readPicture));
    return profiles;
}

std::expected<QList<DiscoveredProfile>, ProfileDiscoveryError> chromiumRootProfile(const QString &dataFolder,
                                                                                   const PictureReader &readPicture)
{
    const auto entries = listDataFolder(dataFolder);
    if (!entries)
        return std::unexpected(entries.error());
    if (!*entries)
        return {};
    const FolderEntry root{lastPathComponent(dataFolder), dataFolder, true};
    DiscoveredProfile profile = readProfile(root, dataFolder, readLocalState(dataFolder), readPicture);
    profile.folder = u"."_s;
    return QList{profile};
}

} // namespace vantrel
