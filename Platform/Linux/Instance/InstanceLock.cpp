#include "Platform/Linux/Instance/InstanceLock.h"

#include "Platform/Linux/Instance/LocalSocket.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/inotify.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>

namespace vantrel {
namespace {

/// For what the watch can't tell: the lock is freed a little after its file is closed.
constexpr std::chrono::milliseconds longestWait{100};

/// The sticky bit keeps those away who clear old files out of runtime and temporary folders.
constexpr mode_t keptForTheUser = S_ISVTX | S_IRUSR | S_IWUSR;

void discardEvents(int watch)
{
    std::array<char, 4096> block{};
    while (read(watch, block.data(), block.size()) > 0) {
    }
}

} // namespace

std::expected<InstanceLock, PlatformError> InstanceLock::create(const InstanceFolder &folder, const QString &path)
{
    OwnedDescriptor file(openat(folder.descriptor(), InstanceFolder::lockName,
                                O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, keptForTheUser));
    if (!file.isOpen())
        return std::unexpected(InstanceFolder::failure(path, errno));
    return InstanceLock(folder, std::move(file));
}

bool InstanceLock::tryLock() const
{
    return flock(file_.number(), LOCK_EX | LOCK_NB) == 0;
}

void InstanceLock::waitForHolder(const QDeadlineTimer &deadline)
{
    if (!watch_.isOpen()) {
        watch_ = OwnedDescriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
        // Sockets appear by a new name, and a process that ends closes its lock.
        inotify_add_watch(watch_.number(), folder_->path(".").constData(), IN_MOVED_TO | IN_CLOSE_WRITE);
        // What happened before is to be looked for at once.
        return;
    }
    const std::chrono::nanoseconds remaining = deadline.remainingTimeAsDuration();
    // Without a watch, for the system limits their number, time passes all the same.
    if (LocalSocket::wait(watch_.number(), POLLIN,
                          QDeadlineTimer(std::min<std::chrono::nanoseconds>(remaining, longestWait))))
        discardEvents(watch_.number());
}

} // namespace vantrel
