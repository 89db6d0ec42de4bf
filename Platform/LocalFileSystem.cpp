#include "Platform/LocalFileSystem.h"

#include "Platform/SystemCalls.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QUuid>

namespace fs = std::filesystem;

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FileSystem)
};

constexpr auto programPermissions = fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec |
                                    fs::perms::others_read | fs::perms::others_exec;
constexpr QFile::Permissions fileAccess = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions programAccess = fileAccess | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

fs::path native(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

std::unexpected<PlatformError> failure(const QString &path, const QString &reason)
{
    //: Error when a file can't be written, copied or removed. First: its path; second: the system's reason.
    return std::unexpected(PlatformError{Texts::tr("%1: %2.").arg(path, reason)});
}

FileSystem::Result resultOf(const std::error_code &error, const QString &path)
{
    if (!error)
        return {};
    return failure(path, QString::fromLocal8Bit(error.message()));
}

bool isThere(const fs::path &path)
{
    std::error_code ignored;
    return fs::exists(fs::symlink_status(path, ignored));
}

/// Beside a place, so that taking the place is one step even when the item comes from another disk.
fs::path besides(const fs::path &place)
{
    return place.parent_path() / (".vantrel-" + QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString());
}

std::error_code moveOrCopy(const fs::path &item, const fs::path &target)
{
    std::error_code error;
    fs::rename(item, target, error);
    if (error != std::errc::cross_device_link)
        return error;
    fs::copy(item, target, fs::copy_options::recursive | fs::copy_options::copy_symlinks, error);
    return error;
}

/// In two steps, the first of which is taken back when the second fails.
std::error_code swapInTwoSteps(const fs::path &item, const fs::path &place)
{
    const fs::path former = besides(place);
    std::error_code error;
    fs::rename(place, former, error);
    if (error)
        return error;
    fs::rename(item, place, error);
    std::error_code ignored;
    fs::rename(former, error ? place : item, ignored);
    return error;
}

} // namespace

LocalFileSystem::LocalFileSystem() : exchange_(system_calls::exchange) {}

FileSystem::Result LocalFileSystem::makeFolder(const QString &path)
{
    std::error_code error;
    fs::create_directories(native(path), error);
    return resultOf(error, path);
}

FileSystem::Result LocalFileSystem::copyProgram(const QString &source, const QString &copy)
{
    std::error_code error;
    fs::copy_file(native(source), native(copy), fs::copy_options::overwrite_existing, error);
    if (!error)
        fs::permissions(native(copy), programPermissions, error);
    return resultOf(error, copy);
}

FileSystem::Result LocalFileSystem::write(const QString &path, const QByteArray &content, Access access)
{
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    if (!isWritten)
        return failure(path, file.errorString());
    // QSaveFile's own are the user's alone, or those of the file that is replaced.
    if (!file.setPermissions(access == Access::executable ? programAccess : fileAccess) || !file.commit())
        return failure(path, file.errorString());
    return {};
}

FileSystem::Result LocalFileSystem::removeAttribute(const QString &path, const QString &name)
{
    return resultOf(system_calls::removeExtendedAttribute(native(path), name.toStdString()), path);
}

std::error_code LocalFileSystem::swap(const fs::path &item, const fs::path &place) const
{
    std::error_code error;
    if (!isThere(place)) {
        fs::rename(item, place, error);
        return error;
    }
    error = exchange_(item, place);
    return error == std::errc::not_supported ? swapInTwoSteps(item, place) : error;
}

FileSystem::Result LocalFileSystem::replaceItem(const QString &place, const QString &item)
{
    const fs::path target = native(place);
    const fs::path staged = besides(target);
    std::error_code error = moveOrCopy(native(item), staged);
    if (!error)
        error = swap(staged, target);
    std::error_code ignored;
    // The item that was replaced, or that could not be put there.
    if (error && !isThere(native(item)))
        fs::rename(staged, native(item), ignored);
    fs::remove_all(staged, ignored);
    return resultOf(error, place);
}

FileSystem::Result LocalFileSystem::remove(const QString &path)
{
    std::error_code error;
    fs::remove_all(native(path), error);
    return resultOf(error, path);
}

} // namespace vantrel
