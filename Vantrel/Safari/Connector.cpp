#include "Vantrel/Safari/Connector.h"

#include "Vantrel/Safari/Scripting.h"

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

constexpr int startPolls = 40;
constexpr std::chrono::milliseconds startPause{50};

} // namespace

Connector::Connector(const Environment &environment) : environment_(environment), log_(scriptingErrors(environment.log))
{
}

QCoro::Task<Result<Connection>> Connector::connect(QString bundleID)
{
    SafariBridge::Settings settings;
    settings.sendingFailed = [log = log_](const QString &reason) {
        log.error("Safari scripting failed: %{public}s"_L1, {reason});
    };
    Connection connection{.application = environment_.bridge.connect(bundleID, settings)};
    if (!connection.application)
        co_return std::unexpected(Failure::automation());
    connection.isFreshlyStarted = !connection.application->isRunning();
    co_await connection.application->activate();
    for (int poll = 0; poll < startPolls && !connection.application->isRunning(); ++poll)
        co_await environment_.clock.sleep(startPause);
    const bool allowed = co_await isAllowed(bundleID);
    if (!allowed)
        co_return std::unexpected(Failure::automation());
    co_return connection;
}

QCoro::Task<bool> Connector::isAllowed(QString bundleID)
{
    const auto answer = co_await environment_.automation.request(bundleID);
    if (!answer || *answer == AutomationPermission::granted)
        co_return true;
    const QList<LogValue> values{bundleID, qint64{*answer}};
    log_.notice("Automation of %{public}s: %d"_L1, values);
    co_return *answer != AutomationPermission::denied;
}

} // namespace vantrel::Safari
