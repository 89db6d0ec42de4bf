#include "Tests/Vantrel/Safari/StandIn/Actor.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

/// The pattern without the names that all statements about menus have; `menuOf` stands for the File menu.
QString pattern(QString text)
{
    return text.replace(u"menuOf"_s, u"menu 1 of menu bar item %s of menu bar 1"_s);
}

std::unexpected<QString> missing(const QString &what)
{
    return std::unexpected<QString>(u"execution error: System Events got an error: Can’t get "_s + what +
                                    u". (-1728)"_s);
}

} // namespace

Actor::Result Actor::perform(const AppleScript::Statement &statement)
{
    if (auto result = read(statement))
        return *result;
    if (auto result = click(statement))
        return *result;
    if (auto result = press(statement))
        return *result;
    if (auto result = manage(statement))
        return *result;
    return std::unexpected(u"syntax error: Expected end of line but found something else. (-2741)"_s);
}

std::optional<Actor::Result> Actor::read(const AppleScript::Statement &statement) const
{
    const auto bar = AppleScript::match(
        statement, u"tell application %s to get name of every menu bar item of menu bar 1 of process %s"_s);
    if (bar)
        return has(bar->at(1)) ? Result(scene_.menuBar()) : missing(u"process"_s);
    const auto menu = AppleScript::match(
        statement, pattern(u"tell application %s to get the name of every menu item of menuOf of process %s"_s));
    if (menu)
        return has(menu->at(2), menu->at(1)) ? Result(titles(scene_.fileMenu())) : missing(u"menu bar item"_s);
    const auto submenu =
        AppleScript::match(statement, pattern(u"tell application %s to tell process %s to tell menu item %s "
                                              "of menuOf to get the name of every menu item of menu 1"_s));
    if (!submenu)
        return std::nullopt;
    const bool isThere = has(submenu->at(1), submenu->at(3), submenu->at(2));
    return isThere ? Result(titles(scene_.submenu())) : missing(u"menu item"_s);
}

std::optional<Actor::Result> Actor::click(const AppleScript::Statement &statement)
{
    const auto item = AppleScript::match(
        statement, pattern(u"tell application %s to tell process %s to click menu item %n of menuOf"_s));
    if (item)
        return has(item->at(1), item->at(3)) ? clickItem(scene_.fileMenu(), item->at(2)) : missing(u"menu bar item"_s);
    const auto sub =
        AppleScript::match(statement, pattern(u"tell application %s to tell process %s to click menu item %n of "
                                              "menu 1 of menu item %s of menuOf"_s));
    if (!sub)
        return std::nullopt;
    return has(sub->at(1), sub->at(4), sub->at(3)) ? clickItem(scene_.submenu(), sub->at(2)) : missing(u"menu item"_s);
}

Actor::Result Actor::clickItem(const QList<Scene::Item> &items, const QString &number)
{
    const qsizetype index = number.toLongLong() - 1;
    if (index < 0 || index >= items.size())
        return missing(u"menu item "_s + number);
    // The keyboard's and the pointer's events reach only what is in front.
    if (scene_.isInFront && items[index].opens)
        scene_.open(*items[index].opens);
    return QStringList();
}

std::optional<Actor::Result> Actor::press(const AppleScript::Statement &statement)
{
    const QString begin = u"tell application %s to tell process %s to keystroke %s using { "_s;
    QString opened;
    if (AppleScript::match(statement, begin + u"command down }"_s))
        opened = scene_.profiles.value(0, u"(ordinary)"_s);
    else if (AppleScript::match(statement, begin + u"shift down , command down }"_s))
        opened = u"(private)"_s;
    else if (const auto key = AppleScript::match(statement, begin + u"shift down , command down , option down }"_s))
        opened = scene_.profiles.value(key->at(2).toInt());
    else
        return std::nullopt;
    if (!has(statement[6].text))
        return missing(u"process"_s);
    if (scene_.isInFront && !opened.isEmpty())
        scene_.open(opened);
    return QStringList();
}

std::optional<Actor::Result> Actor::manage(const AppleScript::Statement &statement)
{
    if (const auto name = AppleScript::match(statement, u"tell application %s to activate"_s)) {
        if (name->first() != "Safari"_L1)
            return missing(u"application"_s);
        scene_.start();
        scene_.isInFront = true;
        return QStringList();
    }
    if (AppleScript::match(statement, u"delay 0.1"_s))
        return QStringList();
    auto raised = AppleScript::match(statement, u"tell application %s to set index of window id %n to 1"_s);
    const auto closed = AppleScript::match(statement, u"tell application %s to close window id %n"_s);
    if (!raised && !closed)
        return std::nullopt;
    const qint64 id = (raised ? *raised : *closed).at(1).toLongLong();
    const Scene::Window *window = scene_.window(id);
    if (!window)
        return missing(u"window id"_s);
    const Scene::Window copy = *window;
    scene_.windows.removeIf([id](const Scene::Window &other) { return other.id == id; });
    if (raised)
        scene_.windows.prepend(copy);
    return QStringList();
}

bool Actor::has(const QString &process, const QString &menu, const QString &item) const
{
    const bool hasMenu = menu.isNull() || menu == scene_.language.file;
    const bool hasItem = item.isNull() || (scene_.hasSubmenu && item == scene_.language.newWindow);
    return scene_.isRunning && process == "Safari"_L1 && hasMenu && hasItem;
}

} // namespace vantrel::test
