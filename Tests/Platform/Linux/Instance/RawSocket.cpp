#include "Tests/Platform/Linux/Instance/RawSocket.h"

#include "Platform/Linux/Instance/LocalSocket.h"

#include <QFile>

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>

#include <chrono>

namespace vantrel::test {
namespace {

constexpr std::chrono::seconds allowed{10};

} // namespace

RawListener::RawListener(const QString &path, int queueLength) : socket_(LocalSocket::make())
{
    QFile::remove(path);
    const sockaddr_un address = LocalSocket::address(QFile::encodeName(path));
    EXPECT_EQ(bind(socket_.number(), reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    EXPECT_EQ(listen(socket_.number(), queueLength), 0);
}

OwnedDescriptor RawListener::accept() const
{
    const bool comes = LocalSocket::wait(socket_.number(), POLLIN, QDeadlineTimer(allowed));
    EXPECT_TRUE(comes) << "Nobody connects.";
    return OwnedDescriptor(comes ? accept4(socket_.number(), nullptr, nullptr, SOCK_CLOEXEC) : -1);
}

OwnedDescriptor connectedTo(const QString &path)
{
    OwnedDescriptor socket = LocalSocket::make();
    const sockaddr_un address = LocalSocket::address(QFile::encodeName(path));
    if (connect(socket.number(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        socket.close();
    return socket;
}

bool sendAll(const OwnedDescriptor &socket, const QByteArray &bytes)
{
    const QDeadlineTimer deadline(allowed);
    for (qsizetype done = 0; done < bytes.size();) {
        if (!LocalSocket::wait(socket.number(), POLLOUT, deadline))
            return false;
        const ssize_t count = send(socket.number(), bytes.constData() + done, static_cast<size_t>(bytes.size() - done),
                                   MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count < 0 && errno != EAGAIN)
            return false;
        done += std::max<ssize_t>(0, count);
    }
    return true;
}

QByteArray receivedLine(const OwnedDescriptor &socket)
{
    const QDeadlineTimer deadline(allowed);
    QByteArray line;
    while (!line.endsWith('\n') && LocalSocket::wait(socket.number(), POLLIN, deadline)) {
        char block[4096];
        const ssize_t count = recv(socket.number(), block, sizeof block, MSG_DONTWAIT);
        if (count == 0 || (count < 0 && errno != EAGAIN))
            break;
        line.append(block, std::max<ssize_t>(0, count));
    }
    return line;
}

} // namespace vantrel::test
