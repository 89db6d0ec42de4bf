#include "Platform/Linux/Instance/InstanceClient.h"

#include "Platform/InstanceMessage.h"
#include "Platform/Linux/Instance/InstanceFolder.h"
#include "Platform/Linux/Instance/LocalSocket.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileInfo>

#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// An app that ends leaves those without an answer who came too late; the next attempt finds its successor, or none.
constexpr int maximumAttempts = 3;
constexpr qsizetype maximumAnswerSize = qsizetype(64) * 1024;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(InstanceClient)
};

void limitConnecting(int socket, const QDeadlineTimer &deadline)
{
    // Connecting waits for room in the app's queue, as long as sending may take. Zero would be for ever.
    const qint64 microseconds = std::max<qint64>(1, deadline.remainingTimeNSecs() / 1000);
    const timeval limit{.tv_sec = microseconds / 1'000'000, .tv_usec = microseconds % 1'000'000};
    setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

/// A connection to the app; closed when nobody listens.
std::expected<OwnedDescriptor, PlatformError> connected(const InstanceFolder &folder, const QString &path,
                                                        const QDeadlineTimer &deadline)
{
    OwnedDescriptor socket = LocalSocket::make();
    if (!socket.isOpen())
        return std::unexpected(InstanceFolder::failure(path, errno));
    limitConnecting(socket.number(), deadline);
    const sockaddr_un address = LocalSocket::address(folder.path(InstanceFolder::socketName));
    if (connect(socket.number(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        const int number = errno;
        if (number == ENOENT || number == ECONNREFUSED)
            return OwnedDescriptor();
        return std::unexpected(number == EAGAIN ? InstanceMessage::noAnswer() : InstanceFolder::failure(path, number));
    }
    if (!LocalSocket::peerIs(geteuid(), socket.number())) {
        //: Error when another user's program listens where the app should. The placeholder is a path.
        return std::unexpected(PlatformError{
            Texts::tr("What listens at %1 belongs to another user, so that it can't be trusted.").arg(path)});
    }
    return socket;
}

/// False when time is up. An app that doesn't read to the end has had enough, and says why in its answer.
bool sent(int socket, const QByteArray &line, const QDeadlineTimer &deadline)
{
    for (qsizetype done = 0; done < line.size();) {
        const ssize_t count =
            send(socket, line.constData() + done, static_cast<size_t>(line.size() - done), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count >= 0)
            done += count;
        else if (errno == EPIPE || errno == ECONNRESET)
            return true;
        else if (!LocalSocket::wait(socket, POLLOUT, deadline))
            return false;
    }
    return true;
}

/// The app's line; as far as it went when the app closed the connection. None when time is up.
std::optional<QByteArray> received(int socket, const QDeadlineTimer &deadline)
{
    QByteArray line;
    std::array<char, 4096> block{};
    while (!line.endsWith('\n') && line.size() < maximumAnswerSize) {
        if (!LocalSocket::wait(socket, POLLIN, deadline))
            return std::nullopt;
        const ssize_t count = recv(socket, block.data(), block.size(), MSG_DONTWAIT);
        if (count > 0)
            line.append(block.data(), count);
        else if (count == 0 || (errno != EAGAIN && errno != EINTR))
            break;
    }
    return line;
}

/// What became of one attempt.
enum class Outcome : std::uint8_t {
    taken,
    nobodyListens,
    /// The app closed the connection without a word.
    abandoned,
};

std::expected<Outcome, PlatformError> attempt(const InstanceFolder &folder, const QString &path, const QByteArray &line,
                                              const QDeadlineTimer &deadline)
{
    const auto socket = connected(folder, path, deadline);
    if (!socket)
        return std::unexpected(socket.error());
    if (!socket->isOpen())
        return Outcome::nobodyListens;
    const auto text = sent(socket->number(), line, deadline) ? received(socket->number(), deadline) : std::nullopt;
    if (text && text->isEmpty())
        return Outcome::abandoned;
    const auto answer = text ? InstanceMessage::parsedAnswer(*text) : std::nullopt;
    if (!answer)
        return std::unexpected(InstanceMessage::noAnswer());
    if (!answer->isAccepted)
        return std::unexpected(InstanceMessage::refused(answer->reason));
    return Outcome::taken;
}

} // namespace

std::expected<bool, PlatformError> InstanceClient::send(const InstanceRequest &request) const
{
    const QByteArray line = InstanceMessage::line(request);
    if (line.size() > InstanceMessage::maximumSize)
        return std::unexpected(PlatformError{InstanceMessage::tooLong()});
    const QDeadlineTimer deadline(patience_);
    const auto folder = InstanceFolder::open(QFileInfo(socketPath_).path());
    if (!folder)
        return std::unexpected(folder.error());
    if (!folder->exists())
        return false;
    for (int time = 0; time < maximumAttempts; ++time) {
        const auto outcome = attempt(*folder, socketPath_, line, deadline);
        if (!outcome)
            return std::unexpected(outcome.error());
        if (*outcome != Outcome::abandoned)
            return *outcome == Outcome::taken;
    }
    return std::unexpected(InstanceMessage::noAnswer());
}

} // namespace vantrel
