#pragma once

#include "Platform/Linux/OwnedDescriptor.h"

#include <QByteArray>
#include <QDeadlineTimer>

#include <sys/un.h>

/// The calls that both ends of the app's socket need.
namespace vantrel::LocalSocket {

/// A socket without an address, closed in programs that this process starts. `flags` are those of socket(2). Check that
/// it is open.
[[nodiscard]] OwnedDescriptor make(int flags = 0);

/// `path` has to be shorter than the system's limit of 108 bytes.
[[nodiscard]] sockaddr_un address(const QByteArray &path);

/// Whether the process at the other end runs as that user.
[[nodiscard]] bool peerIs(uid_t user, int socket);

/// Waits until one of `events` (as for poll(2)) or an end has come. False when time is up.
[[nodiscard]] bool wait(int descriptor, short events, const QDeadlineTimer &deadline);

} // namespace vantrel::LocalSocket
