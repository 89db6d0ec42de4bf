#include "Platform/Linux/Processes/ChromiumSingleton.h"

#include "VantrelKit/Paths.h"

#include <QFile>
#include <QSysInfo>

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr auto flatpakData = "/.var/app/"_L1;

/// Empty when there is no such link. (QFile::symLinkTarget makes the destination absolute.)
QString destinationOfLink(const QString &path)
{
    std::error_code isNone;
    const auto destination = std::filesystem::read_symlink(QFile::encodeName(path).toStdString(), isNone);
    return QFile::decodeName(destination.c_str());
}

/// None when the path is too long for a socket's.
std::optional<sockaddr_un> socketAddress(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || static_cast<size_t>(name.size()) >= sizeof address.sun_path)
        return std::nullopt;
    std::ranges::copy(name, std::begin(address.sun_path));
    return address;
}

/// The process that listens at the socket. The browser notes a message without content and goes on.
std::optional<ProcessHandle> listener(const QString &path)
{
    const auto address = socketAddress(path);
    const OwnedDescriptor connection(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!address || connect(connection.number(), reinterpret_cast<const sockaddr *>(&*address), sizeof *address) != 0)
        return std::nullopt;
    ucred peer{};
    socklen_t size = sizeof peer;
    // Anybody may make a socket where temporary files are, once the browser's is gone.
    if (getsockopt(connection.number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 || peer.uid != geteuid())
        return std::nullopt;
    return ProcessHandle::open(peer.pid);
}

/// The process that the lock names, when it uses the folder. This is for browsers whose socket can't be reached from
/// here: a Snap's folder for temporary files is closed to others.
std::optional<ProcessHandle> namedProcess(const SingletonLock &lock, const QString &dataFolder)
{
    // What a Flatpak's lock names is another process here.
    if (!flatpakApplication(dataFolder).isEmpty())
        return std::nullopt;
    auto process = ProcessHandle::open(lock.process);
    if (!process || !process->hasOpenFileBelow(dataFolder))
        return std::nullopt;
    return process;
}

} // namespace

SingletonContext SingletonContext::current()
{
    return {QSysInfo::machineHostName(), qEnvironmentVariable("XDG_RUNTIME_DIR")};
}

std::optional<SingletonLock> parseSingletonLock(const QString &destination)
{
    // Names of hosts may hold hyphens themselves.
    const qsizetype hyphen = destination.lastIndexOf(u'-');
    if (hyphen < 0)
        return std::nullopt;
    const QStringView number = QStringView(destination).sliced(hyphen + 1);
    const bool hasDigitsOnly = std::ranges::all_of(number, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
    bool isNumber = false;
    const int process = number.toInt(&isNumber);
    if (!hasDigitsOnly || !isNumber || process == 0)
        return std::nullopt;
    return SingletonLock{destination.first(hyphen), process};
}

QString flatpakApplication(const QString &dataFolder)
{
    const qsizetype start = dataFolder.indexOf(flatpakData);
    return start < 0 ? QString() : dataFolder.sliced(start + flatpakData.size()).section(u'/', 0, 0);
}

QStringList singletonSocketPlaces(const QString &destination, const QString &dataFolder,
                                  const QString &runtimeDirectory)
{
    QStringList places;
    if (const QString application = flatpakApplication(dataFolder); !application.isEmpty()) {
        const QString data = dataFolder.first(dataFolder.indexOf(flatpakData)) + flatpakData + application;
        if (destination.startsWith("/tmp/"_L1))
            places.append(runtimeDirectory + "/.flatpak/"_L1 + application + destination);
        if (destination.startsWith("/var/tmp/"_L1))
            places.append(data + "/cache"_L1 + destination.sliced("/var"_L1.size()));
    }
    if (destination.startsWith(u'/'))
        places.append(destination);
    return places;
}

SingletonState singletonState(const QString &dataFolder, const SingletonContext &context)
{
    const auto lock = parseSingletonLock(destinationOfLink(joinedPath(dataFolder, u"SingletonLock"_s)));
    if (!lock || lock->hostName != context.hostName)
        return {};
    const QString socket = destinationOfLink(joinedPath(dataFolder, u"SingletonSocket"_s));
    for (const QString &place : singletonSocketPlaces(socket, dataFolder, context.runtimeDirectory)) {
        if (auto process = listener(place))
            return {true, std::move(process)};
    }
    return {true, namedProcess(*lock, dataFolder)};
}

} // namespace vantrel
