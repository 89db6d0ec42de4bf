#include "Platform/Linux/Instance/InstanceConnection.h"

#include <QPointer>

#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <tuple>
#include <utility>

namespace vantrel {
namespace {

/// Shorter than askers wait for their answer, so that one who says nothing can't keep others from theirs.
constexpr std::chrono::seconds longestSilence{3};

} // namespace

InstanceConnection::InstanceConnection(OwnedDescriptor socket, ApplicationInstance::Handler handler, QObject *parent)
    : QObject(parent),
      socket_(std::move(socket)),
      handler_(std::move(handler)),
      notifier_(socket_.number(), QSocketNotifier::Read)
{
    connect(&notifier_, &QSocketNotifier::activated, this, [this] { read(); });
    connect(&patience_, &QTimer::timeout, this, [this] { giveUp(); });
    patience_.setSingleShot(true);
    patience_.start(longestSilence);
}

void InstanceConnection::read()
{
    std::array<char, std::size_t(64) * 1024> block;
    ssize_t count = 0;
    while ((count = recv(socket_.number(), block.data(), block.size(), MSG_DONTWAIT)) > 0) {
        const qsizetype seen = received_.size();
        received_.append(block.data(), count);
        const qsizetype end = received_.indexOf('\n', seen);
        const bool isTooLong =
            end >= InstanceMessage::maximumSize || (end < 0 && received_.size() >= InstanceMessage::maximumSize);
        if (isTooLong)
            refuse(InstanceMessage::tooLong());
        else if (end >= 0)
            takeOn(received_.first(end));
        if (isTooLong || end >= 0)
            return;
    }
    if (count == 0 || (errno != EAGAIN && errno != EINTR))
        close();
}

void InstanceConnection::giveUp()
{
    // If it was the app that was busy, the request may be there by now. Its handler may end the app.
    const QPointer<InstanceConnection> self(this);
    read();
    if (self)
        close();
}

void InstanceConnection::takeOn(const QByteArray &line)
{
    const auto request = InstanceMessage::parsedRequest(line);
    if (!request) {
        refuse(request.error());
        return;
    }
    // What nobody waits for any more was reported as failed, and may have been asked for again.
    const auto handler = handler_;
    if (finish({.isAccepted = true}))
        handler(*request);
}

void InstanceConnection::refuse(const QString &reason)
{
    // Whether or not anybody is there to be told.
    std::ignore = finish({.isAccepted = false, .reason = reason});
}

bool InstanceConnection::finish(const InstanceMessage::Answer &answer)
{
    const QByteArray line = InstanceMessage::line(answer);
    const ssize_t count =
        send(socket_.number(), line.constData(), static_cast<std::size_t>(line.size()), MSG_DONTWAIT | MSG_NOSIGNAL);
    close();
    return count == line.size();
}

void InstanceConnection::close()
{
    if (!socket_.isOpen())
        return;
    notifier_.setEnabled(false);
    patience_.stop();
    socket_.close();
    received_.clear();
    deleteLater();
}

} // namespace vantrel
