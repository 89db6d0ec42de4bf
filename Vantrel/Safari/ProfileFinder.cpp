#include "Vantrel/Safari/ProfileFinder.h"

#include "Vantrel/Safari/MenuLanguage.h"
#include "VantrelKit/Safari/SafariMenus.h"

#include <tuple>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

constexpr int startPolls = 40;
constexpr std::chrono::milliseconds startPause{50};

/// Places begin at 0, which is the profile that Command-N opens.
QList<ProfileTarget::SafariProfile> numbered(const QStringList &names)
{
    QList<ProfileTarget::SafariProfile> profiles;
    for (const QString &name : names)
        profiles.append({.name = name, .index = profiles.size()});
    return profiles;
}

} // namespace

ProfileFinder::ProfileFinder(const Environment &environment)
    : environment_(environment),
      log_(scriptingErrors(environment.log))
{
}

QCoro::Task<SafariSearch::Result> ProfileFinder::findProfiles(Browser browser)
{
    const auto names = co_await readNames(browser);
    if (!names)
        co_return refusal(names.error());
    co_return numbered(*names);
}

QCoro::Task<Safari::Result<QStringList>> ProfileFinder::readNames(Browser browser)
{
    const auto started = co_await startIfNeeded(browser);
    if (!started)
        co_return std::unexpected(started.error());
    const auto read = co_await environment_.menus.language(browser.name);
    const auto language = menuLanguage(read, environment_.runningApplications.isRunning(browser.bundleID));
    if (!language)
        co_return std::unexpected(language.error());
    const auto menu = co_await environment_.menus.profileItems(browser.name, *language);
    if (!menu)
        co_return std::unexpected(menu.error());
    const std::optional<ProfileItems> &items = *menu;
    if (!items)
        co_return std::unexpected(Failure::menuUnreadable());
    co_return SafariMenus::profileNames(items->titles, *language);
}

QCoro::Task<Safari::Result<>> ProfileFinder::startIfNeeded(Browser browser)
{
    const RunningApplications &running = environment_.runningApplications;
    if (running.isRunning(browser.bundleID))
        co_return {};
    const auto started = co_await environment_.bridge.startHidden(browser.url);
    if (!started)
        log_.error("Safari not started: %{public}s"_L1, QList<LogValue>(1, started.error().message));
    for (int poll = 1; started && poll < startPolls && !running.isRunning(browser.bundleID); ++poll)
        co_await environment_.clock.sleep(startPause);
    if (!running.isRunning(browser.bundleID))
        co_return std::unexpected(Failure::notStarted());
    co_return {};
}

SafariSearch::Result ProfileFinder::refusal(const Failure &failure) const
{
    // Only a program that has asked is in the list in which the message tells the user to turn it on.
    if (failure == Failure::accessibility())
        std::ignore = environment_.accessibility.isTrustedElseAsk();
    return std::unexpected(PlatformError{failure.message});
}

} // namespace vantrel::Safari
