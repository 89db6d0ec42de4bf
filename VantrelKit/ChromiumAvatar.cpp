#include "VantrelKit/ChromiumAvatar.h"

#include "VantrelKit/DataFolder.h"
#include "VantrelKit/DecimalInteger.h"
#include "VantrelKit/Paths.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The file that `avatarIcon` names, if it names one. Built-in pictures are kept in the profile, named by their number,
/// once the browser has fetched them; the address is of the form in Chromium's `profile_avatar_icon_util.cc`.
std::optional<QString> namedPicture(const QString &profileFolder, const QString &dataFolder, const QString &avatarIcon)
{
    constexpr auto builtIn = "chrome://theme/IDR_PROFILE_AVATAR_"_L1;
    if (!avatarIcon.startsWith("chrome://"_L1))
        return joinedPath(dataFolder, avatarIcon);
    if (!avatarIcon.startsWith(builtIn))
        return std::nullopt;
    const auto number = decimalInteger(QStringView(avatarIcon).sliced(builtIn.size()));
    if (!number)
        return std::nullopt;
    return joinedPath(profileFolder, "Avatar Icons/"_L1 + QString::number(*number));
}

} // namespace

std::optional<QByteArray> firstImageInFolder(const QString &folder, const PictureReader &readPicture)
{
    auto entries = listDataFolder(folder).value_or(std::nullopt).value_or(QList<FolderEntry>());
    std::ranges::sort(entries, {}, &FolderEntry::name);
    for (const FolderEntry &entry : entries) {
        if (auto picture = readPicture(entry.path))
            return picture;
    }
    return std::nullopt;
}

std::optional<QByteArray> chromiumAvatarPNG(const QString &profileFolder, const QString &dataFolder,
                                            const std::optional<QString> &avatarIcon, const PictureReader &readPicture)
{
    QStringList candidates;
    if (avatarIcon) {
        if (const auto path = namedPicture(profileFolder, dataFolder, *avatarIcon))
            candidates.append(*path);
    }
    candidates.append(joinedPath(profileFolder, u"Account Avatar"_s));
    for (const QString &candidate : std::as_const(candidates)) {
        if (auto picture = readPicture(candidate))
            return picture;
    }
    for (const auto folder : {"Accounts/Avatar Images"_L1, "Avatar Icons"_L1, "Avatar Images"_L1}) {
        if (auto picture = firstImageInFolder(joinedPath(profileFolder, folder), readPicture))
            return picture;
    }
    return std::nullopt;
}

} // namespace vantrel
