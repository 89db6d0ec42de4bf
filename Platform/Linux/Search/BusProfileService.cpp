#include "Platform/Linux/Search/BusProfileService.h"

#include "Platform/Linux/Search/SearchTypes.h"

namespace vantrel {

BusProfileService::BusProfileService(QDBusConnection bus, QString objectPath)
    : bus_(std::move(bus)),
      objectPath_(std::move(objectPath))
{
}

void BusProfileService::start(ProfileAnswers &answers)
{
    registerSearchTypes();
    interfaces_.emplace(answers);
}

void BusProfileService::announceChange()
{
    if (bus_.isConnected())
        bus_.send(ProfilesInterface::profilesChanged(objectPath_));
}

QString BusProfileService::introspect(const QString &path) const
{
    if (path != objectPath_ || !interfaces_)
        return {};
    return interfaces_->profiles.interface().description() + interfaces_->runner.interface().description() +
           interfaces_->shell.interface().description();
}

bool BusProfileService::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    return interfaces_ && (interfaces_->profiles.interface().handle(message, connection) ||
                           interfaces_->runner.interface().handle(message, connection) ||
                           interfaces_->shell.interface().handle(message, connection));
}

} // namespace vantrel
