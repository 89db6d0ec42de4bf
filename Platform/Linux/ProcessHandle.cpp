#include "Platform/Linux/ProcessHandle.h"

#include <QFile>
#include <QFileInfo>

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace vantrel {

std::optional<ProcessHandle> ProcessHandle::open(pid_t process)
{
    if (process <= 0)
        return std::nullopt;
    // The C library's own function can't be linked from C++ before version 2.37.
    OwnedDescriptor descriptor(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    if (!descriptor.isOpen())
        return std::nullopt;
    return ProcessHandle(process, std::move(descriptor));
}

bool ProcessHandle::isAlive() const
{
    pollfd request{.fd = descriptor_.number(), .events = POLLIN, .revents = 0};
    return poll(&request, 1, 0) == 0;
}

bool ProcessHandle::hasOpenFileBelow(const QString &folder) const
{
    namespace fs = std::filesystem;
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    if (canonical.isEmpty())
        return false;
    const std::string start = QFile::encodeName(canonical).toStdString() + '/';
    std::error_code error;
    fs::directory_iterator entry("/proc/" + std::to_string(process_) + "/fd", error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        // A file that is closed meanwhile has no destination.
        std::error_code isClosed;
        if (fs::read_symlink(entry->path(), isClosed).native().starts_with(start))
            return isAlive();
    }
    return false;
}

} // namespace vantrel
