#include "Platform/Linux/Processes/FirefoxProfileLock.h"

#include "VantrelKit/DataFolder.h"
#include "VantrelKit/Paths.h"
#include "VantrelKit/ProfilesIni.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QList<DiscoveredProfile> listedProfiles(const QString &dataFolder)
{
    QFile file(joinedPath(dataFolder, u"profiles.ini"_s));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return parseProfilesINI(QString::fromUtf8(file.readAll()), dataFolder);
}

} // namespace

QStringList firefoxProfileFolders(const QString &dataFolder)
{
    QStringList folders;
    const auto listed = listDataFolder(dataFolder);
    const QList<FolderEntry> entries = listed ? listed->value_or(QList<FolderEntry>()) : QList<FolderEntry>();
    for (const FolderEntry &entry : entries) {
        if (entry.isDirectory)
            folders.append(entry.path);
    }
    for (const DiscoveredProfile &profile : listedProfiles(dataFolder))
        folders.append(QDir::cleanPath(profile.folder));
    folders.removeDuplicates();
    return folders;
}

std::optional<ProcessHandle> profileLockHolder(const QString &profileFolder)
{
    const QByteArray path = QFile::encodeName(joinedPath(profileFolder, u".parentlock"_s));
    const OwnedDescriptor file(open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW));
    struct flock lock{};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    // Asks only; no lock is taken.
    if (!file.isOpen() || fcntl(file.number(), F_GETLK, &lock) != 0 || lock.l_type == F_UNLCK)
        return std::nullopt;
    return ProcessHandle::open(lock.l_pid);
}

} // namespace vantrel
