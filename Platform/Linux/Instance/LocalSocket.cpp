#include "Platform/Linux/Instance/LocalSocket.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <limits>

namespace vantrel::LocalSocket {

OwnedDescriptor make(int flags)
{
    return OwnedDescriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | flags, 0));
}

sockaddr_un address(const QByteArray &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    Q_ASSERT(static_cast<size_t>(path.size()) < sizeof address.sun_path);
    std::ranges::copy(path, std::begin(address.sun_path));
    return address;
}

bool peerIs(uid_t user, int socket)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == user;
}

bool wait(int descriptor, short events, const QDeadlineTimer &deadline)
{
    pollfd request{.fd = descriptor, .events = events, .revents = 0};
    // A signal ends the call early.
    do {
        constexpr qint64 longest = std::numeric_limits<int>::max();
        const auto remaining = static_cast<int>(std::min(deadline.remainingTime(), longest));
        if (poll(&request, 1, remaining) > 0)
            return true;
    } while (!deadline.hasExpired());
    return false;
}

} // namespace vantrel::LocalSocket
