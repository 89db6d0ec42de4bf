#include "Platform/Linux/Instance/BusApplication.h"

#include "Platform/Linux/Instance/ActivationMessage.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// An owner that is just ending gives the name up, or answers no more.
constexpr int maximumAttempts = 3;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(BusApplication)
};

QDBusMessage callOfTheBus(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                          u"org.freedesktop.DBus"_s, method);
    message.setArguments(arguments);
    return message;
}

/// The answer, or an error when there is none in time. Nothing else is processed meanwhile.
QDBusMessage answer(const QDBusConnection &bus, const QDBusMessage &call, const QDeadlineTimer &deadline)
{
    constexpr qint64 longest = std::numeric_limits<int>::max();
    // Less than a millisecond would mean the library's own, far longer limit.
    return bus.call(call, QDBus::Block, static_cast<int>(std::clamp<qint64>(deadline.remainingTime(), 1, longest)));
}

enum class Ownership : std::uint8_t {
    own,
    another,
    unknown,
};

Ownership requestName(const QDBusConnection &bus, const QDeadlineTimer &deadline)
{
    constexpr uint doNotQueue = 4;
    constexpr uint isOwner = 1;
    constexpr uint exists = 3;
    constexpr uint isOwnerAlready = 4;
    const QDBusMessage reply =
        answer(bus, callOfTheBus(u"RequestName"_s, {ActivationMessage::busName(), doNotQueue}), deadline);
    const uint result = reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0).toUInt() : 0;
    if (result == isOwner || result == isOwnerAlready)
        return Ownership::own;
    return result == exists ? Ownership::another : Ownership::unknown;
}

} // namespace

BusApplication::BusApplication(QDBusConnection bus, ApplicationInstance::Handler handler, QDBusVirtualObject *others)
    : bus_(std::move(bus)),
      handler_(std::move(handler)),
      others_(others)
{
}

BusApplication::~BusApplication()
{
    if (!bus_.isConnected())
        return;
    bus_.send(callOfTheBus(u"ReleaseName"_s, {ActivationMessage::busName()}));
    bus_.unregisterObject(ActivationMessage::objectPath());
}

std::expected<ApplicationInstance::Role, PlatformError> BusApplication::start(const InstanceRequest &first,
                                                                              const QDeadlineTimer &deadline)
{
    // Before the name, for calls come as soon as it is owned.
    if (!bus_.isConnected() || !bus_.registerVirtualObject(ActivationMessage::objectPath(), this))
        return ApplicationInstance::Role::only;
    for (int attempt = 0; attempt < maximumAttempts && !deadline.hasExpired(); ++attempt) {
        if (requestName(bus_, deadline) != Ownership::another)
            return ApplicationInstance::Role::only;
        const QDBusMessage reply = answer(bus_, ActivationMessage::call(first), deadline);
        if (reply.type() == QDBusMessage::ReplyMessage)
            return ApplicationInstance::Role::second;
    }
    //: Error when the app runs elsewhere in the session but hangs.
    return std::unexpected(PlatformError{Texts::tr("Vantrel is running on this session bus, but doesn't answer.")});
}

QString BusApplication::introspect(const QString &path) const
{
    if (path != ActivationMessage::objectPath())
        return {};
    return ActivationMessage::interfaceDescription() + (others_ == nullptr ? QString() : others_->introspect(path));
}

bool BusApplication::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    const auto request = ActivationMessage::request(message);
    if (!request) {
        if (others_ != nullptr && others_->handleMessage(message, connection))
            return true;
        if (request.error() == ActivationMessage::Problem::otherInterface)
            return false;
        connection.send(message.createErrorReply(request.error() == ActivationMessage::Problem::unknownMethod
                                                     ? QDBusError::UnknownMethod
                                                     : QDBusError::InvalidArgs,
                                                 message.member()));
        return true;
    }
    // Whoever calls doesn't wait until it is done.
    if (message.isReplyRequired())
        connection.send(message.createReply());
    const auto handler = handler_;
    handler(*request);
    return true;
}

} // namespace vantrel
