#include "Platform/Linux/Instance/InstanceListener.h"

#include "Platform/Linux/Instance/InstanceConnection.h"
#include "Platform/Linux/Instance/LocalSocket.h"

#include <QTimer>

#include <sys/socket.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <utility>

namespace vantrel {
namespace {

/// Far more than ask at a time; what would be too much for the process waits in the system's queue.
constexpr int maximumConnections = 128;
constexpr int queueLength = 128;
constexpr std::chrono::seconds restAfterFailure{1};
constexpr const char *unfinishedName = "socket.new";

} // namespace

InstanceListener::InstanceListener(const InstanceFolder &folder, OwnedDescriptor socket,
                                   ApplicationInstance::Handler handler)
    : folder_(folder),
      socket_(std::move(socket)),
      handler_(std::move(handler)),
      notifier_(socket_.number(), QSocketNotifier::Read)
{
    connect(&notifier_, &QSocketNotifier::activated, this, [this] { accept(); });
}

InstanceListener::~InstanceListener()
{
    unlinkat(folder_.descriptor(), InstanceFolder::socketName, 0);
}

std::expected<std::unique_ptr<InstanceListener>, PlatformError>
InstanceListener::create(const InstanceFolder &folder, const QString &path, ApplicationInstance::Handler handler)
{
    OwnedDescriptor socket = LocalSocket::make(SOCK_NONBLOCK);
    unlinkat(folder.descriptor(), unfinishedName, 0);
    const sockaddr_un address = LocalSocket::address(folder.path(unfinishedName));
    // It gets its name only once it listens, so that whoever finds it can connect. A name that a process left behind
    // when it was killed is replaced.
    if (!socket.isOpen() || bind(socket.number(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 ||
        listen(socket.number(), queueLength) != 0 ||
        renameat(folder.descriptor(), unfinishedName, folder.descriptor(), InstanceFolder::socketName) != 0)
        return std::unexpected(InstanceFolder::failure(path, errno));
    return std::unique_ptr<InstanceListener>(new InstanceListener(folder, std::move(socket), std::move(handler)));
}

void InstanceListener::accept()
{
    while (connectionCount_ < maximumConnections) {
        OwnedDescriptor socket(accept4(socket_.number(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (socket.isOpen())
            add(std::move(socket));
        else if (errno == EAGAIN)
            return;
        else if (errno != EINTR && errno != ECONNABORTED) {
            pause();
            return;
        }
    }
}

void InstanceListener::add(OwnedDescriptor socket)
{
    if (!LocalSocket::peerIs(geteuid(), socket.number()))
        return;
    auto *const connection = new InstanceConnection(std::move(socket), handler_, this);
    notifier_.setEnabled(++connectionCount_ < maximumConnections);
    connect(connection, &QObject::destroyed, &notifier_, [this] {
        --connectionCount_;
        notifier_.setEnabled(true);
    });
}

void InstanceListener::pause()
{
    // Whoever waits stays in the queue and would wake the app again and again until files can be opened.
    notifier_.setEnabled(false);
    QTimer::singleShot(restAfterFailure, &notifier_, [this] { notifier_.setEnabled(true); });
}

} // namespace vantrel
