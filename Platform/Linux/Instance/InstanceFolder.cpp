#include "Platform/Linux/Instance/InstanceFolder.h"

#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <system_error>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr mode_t forTheUserAlone = S_IRWXU;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(InstanceFolder)
};

PlatformError foreignFolder(const QString &path)
{
    //: Error when the folder through which the command line talks to the app isn't the user's. The placeholder is the
    //: folder.
    return {Texts::tr("The folder %1 belongs to another user, so that it can't be trusted. Remove it and try again.")
                .arg(path)};
}

bool belongsToAnother(const struct stat &status)
{
    return status.st_uid != geteuid();
}

/// Why a folder can't be opened: another user's may not even be looked into.
PlatformError refusal(const QString &path, int number)
{
    struct stat status{};
    if (lstat(QFile::encodeName(path).constData(), &status) == 0 && belongsToAnother(status))
        return foreignFolder(path);
    return InstanceFolder::failure(path, number);
}

} // namespace

PlatformError InstanceFolder::failure(const QString &path, int number)
{
    const std::string reason = std::system_category().message(number);
    //: Error when the app can't listen for requests, or be reached. First: a folder or file; second: the system's
    //: reason.
    return {Texts::tr("%1 can't be used: %2.").arg(path, QString::fromLocal8Bit(reason.c_str()))};
}

std::expected<InstanceFolder, PlatformError> InstanceFolder::open(const QString &path)
{
    // A link would lead wherever its owner wants.
    OwnedDescriptor folder(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder.isOpen()) {
        if (const int number = errno; number != ENOENT)
            return std::unexpected(refusal(path, number));
        return InstanceFolder();
    }
    struct stat status{};
    if (fstat(folder.number(), &status) != 0)
        return std::unexpected(failure(path, errno));
    if (belongsToAnother(status))
        return std::unexpected(foreignFolder(path));
    return InstanceFolder(std::move(folder));
}

std::expected<InstanceFolder, PlatformError> InstanceFolder::make(const QString &path)
{
    if (mkdir(QFile::encodeName(path).constData(), forTheUserAlone) != 0 && errno != EEXIST)
        return std::unexpected(failure(path, errno));
    auto folder = open(path);
    if (!folder)
        return std::unexpected(folder.error());
    if (!folder->exists())
        return std::unexpected(failure(path, ENOENT));
    if (fchmod(folder->descriptor(), forTheUserAlone) != 0)
        return std::unexpected(failure(path, errno));
    return folder;
}

QByteArray InstanceFolder::path(const char *name) const
{
    return "/proc/self/fd/" + QByteArray::number(descriptor()) + '/' + name;
}

} // namespace vantrel
