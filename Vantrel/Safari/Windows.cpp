#include "Vantrel/Safari/Windows.h"

#include "Vantrel/Safari/MenuLanguage.h"
#include "VantrelKit/Safari/SafariMenus.h"
#include "VantrelKit/WebLinks.h"

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

std::unexpected<PlatformError> refusal(const Failure &failure)
{
    return std::unexpected(PlatformError{failure.message});
}

} // namespace

Windows::Windows(const Environment &environment)
    : environment_(environment),
      log_(scriptingErrors(environment.log)),
      links_(environment.log)
{
}

Windows::Step Windows::openProfile(QString name, qint64 index, Browser browser, QList<QUrl> links)
{
    const auto connection = co_await connect(browser);
    if (!connection)
        co_return refusal(connection.error());
    const auto language = co_await this->language(browser);
    if (!language)
        co_return refusal(logged(language.error()));
    const Wanted wanted{.name = name, .index = index, .safari = browser.name, .language = *language};
    // In a variable of its own: g++ 12 frees what a function object holds twice when it is made where a task is waited
    // for.
    const WindowOpener::Attempt attempt = [this, wanted](int number) { return this->attempt(wanted, number); };
    co_return co_await show(*connection, browser.name, attempt, links);
}

Windows::Step Windows::openPrivateWindow(Browser browser, QList<QUrl> links)
{
    return openWithKeys(browser, privateWindowScript(browser.name), std::move(links));
}

Windows::Step Windows::openOrdinaryWindow(const Browser &browser, QList<QUrl> links)
{
    return openWithKeys(browser, ordinaryWindowScript(browser.name), std::move(links));
}

Windows::Step Windows::openWithKeys(Browser browser, QString script, QList<QUrl> links)
{
    const auto connection = co_await connect(browser);
    if (!connection)
        co_return refusal(connection.error());
    const WindowOpener::Attempt attempt = [this, script](int) { return run(script); };
    co_return co_await show(*connection, browser.name, attempt, links);
}

QCoro::Task<Result<Connection>> Windows::connect(Browser browser)
{
    auto connection = co_await environment_.connector.connect(browser.bundleID);
    if (connection && !environment_.accessibility.isTrustedElseAsk())
        co_return std::unexpected(Failure::accessibility());
    co_return connection;
}

QCoro::Task<Result<SafariLanguage>> Windows::language(Browser browser)
{
    const auto read = co_await environment_.menus.language(browser.name);
    co_return menuLanguage(read, environment_.runningApplications.isRunning(browser.bundleID));
}

QCoro::Task<Result<>> Windows::attempt(Wanted wanted, int number)
{
    // Read each time: an item's number is true only for the menu that it was read from.
    const auto menu = co_await environment_.menus.profileItems(wanted.safari, wanted.language);
    if (!menu)
        co_return std::unexpected(logged(menu.error()));
    if (const std::optional<ProfileItems> &items = *menu)
        co_return co_await click(wanted, *items);
    co_return co_await openPlace(wanted, number);
}

QCoro::Task<Result<>> Windows::click(Wanted wanted, ProfileItems items)
{
    const auto position = SafariMenus::position(wanted.name, items.titles, wanted.language);
    if (!position)
        co_return std::unexpected(Failure::noProfile(wanted.name));
    co_return co_await run(clickItemScript(wanted.safari, *position, wanted.language, items.layout));
}

QCoro::Task<Result<>> Windows::openPlace(Wanted wanted, int number)
{
    if (wanted.index < 0)
        co_return std::unexpected(Failure::menuUnreadable());
    log_.notice("Safari's File menu unreadable; opening the profile by its place, %ld"_L1,
                QList<LogValue>(1, wanted.index));
    // Shortcuts can be changed by the user; where they led to no window, the menu is what is left.
    const PlaceMeans means = number == 1 ? PlaceMeans::keys : PlaceMeans::menuItem;
    co_return co_await run(openPlaceScript(wanted.safari, wanted.index, wanted.language.file, means));
}

QCoro::Task<Result<>> Windows::run(QString script)
{
    const auto printed = co_await environment_.scripting.run(script);
    if (!printed)
        co_return std::unexpected(logged(printed.error()));
    co_return {};
}

Windows::Step Windows::show(Connection connection, QString safari, WindowOpener::Attempt attempt, QList<QUrl> links)
{
    const auto window = co_await environment_.windows.open(connection, safari, attempt);
    if (!window)
        co_return refusal(window.error());
    const QList<QUrl> openable = openableLinks(links);
    if (!openable.isEmpty())
        co_await links_.place(openable, connection.application, *window);
    co_return {};
}

Failure Windows::logged(const Failure &failure) const
{
    log_.error("Safari scripting failed: %{public}s"_L1, {failure.message});
    return failure;
}

} // namespace vantrel::Safari
