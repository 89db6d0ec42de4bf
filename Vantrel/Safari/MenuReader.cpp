#include "Vantrel/Safari/MenuReader.h"

#include "VantrelKit/Safari/CanonicalText.h"
#include "VantrelKit/Safari/SafariMenus.h"

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

constexpr int menuBarTries = 10;
constexpr std::chrono::milliseconds menuBarPause{50};
constexpr qint64 itemsTries = 5;
constexpr std::chrono::milliseconds itemsPause{200};

} // namespace

MenuReader::MenuReader(const Environment &environment)
    : environment_(environment),
      log_(scriptingErrors(environment.log))
{
}

QCoro::Task<Result<std::optional<SafariLanguage>>> MenuReader::language(QString name)
{
    for (int number = 1; number <= menuBarTries; ++number) {
        const auto titles = co_await environment_.scripting.list(menuBarScript(name));
        if (titles && !titles->isEmpty()) {
            const QList<SafariLanguage> languages = co_await environment_.languages.all();
            co_return SafariMenus::language(*titles, languages);
        }
        if (!titles && titles.error().isFatal())
            co_return std::unexpected(titles.error());
        log_.information("Safari's menu bar isn't readable yet"_L1);
        if (number < menuBarTries)
            co_await environment_.clock.sleep(menuBarPause);
    }
    co_return std::nullopt;
}

QCoro::Task<Result<std::optional<ProfileItems>>> MenuReader::profileItems(QString name, SafariLanguage language)
{
    for (qint64 attempt = 1; attempt <= itemsTries; ++attempt) {
        const auto items = co_await readItems(name, language);
        if (items && !items->titles.isEmpty())
            co_return *items;
        if (!items && items.error().isFatal())
            co_return std::unexpected(items.error());
        log_.information("Safari's profile menu isn't readable yet, attempt %ld"_L1, QList<LogValue>(1, attempt));
        if (attempt < itemsTries)
            co_await environment_.clock.sleep(itemsPause);
    }
    co_return std::nullopt;
}

QCoro::Task<Result<ProfileItems>> MenuReader::readItems(QString name, SafariLanguage language)
{
    const auto menu = co_await environment_.scripting.list(fileMenuScript(name, language.file));
    if (!menu)
        co_return std::unexpected(menu.error());
    if (menu->isEmpty() || !isSameText(menu->constFirst(), language.newWindow))
        co_return ProfileItems{.titles = *menu, .layout = MenuLayout::flat};
    const auto submenu = co_await environment_.scripting.list(profileSubmenuScript(name, language));
    if (!submenu)
        co_return std::unexpected(submenu.error());
    co_return ProfileItems{.titles = *submenu, .layout = MenuLayout::submenu};
}

} // namespace vantrel::Safari
