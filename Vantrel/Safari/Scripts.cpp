#include "Vantrel/Safari/Scripts.h"

#include "VantrelKit/Safari/SafariMenus.h"

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

/// The text as it stands between the quotes of an AppleScript string.
QString escaped(QString text)
{
    return text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
}

QString fileMenuPath(const QString &file)
{
    return u"menu 1 of menu bar item \""_s + escaped(file) + u"\" of menu bar 1"_s;
}

QString submenuPath(const SafariLanguage &language)
{
    return u"menu 1 of menu item \""_s + escaped(language.newWindow) + u"\" of "_s + fileMenuPath(language.file);
}

/// Keys and clicks reach only the application in front. The name stands as it is: with a quote in it, which no name of
/// a Safari has, the script would be refused.
QString inFront(const QString &name, const QString &action)
{
    return u"tell application \""_s + name +
           u"\" to activate\ntell application \"System Events\" to tell process \""_s + name + u"\" to "_s + action;
}

QString withDelay(const QString &script)
{
    return script + u"\ndelay 0.1"_s;
}

QString click(qint64 number, const QString &path)
{
    return u"click menu item "_s + QString::number(number) + u" of "_s + path;
}

QString pressPlace(qint64 place)
{
    if (place == 0)
        return u"keystroke \"n\" using {command down}"_s;
    return u"keystroke \""_s + QString::number(place) + u"\" using {shift down, command down, option down}"_s;
}

} // namespace

QString menuBarScript(const QString &name)
{
    return SafariMenus::listScript(
        u"tell application \"System Events\" to get name of every menu bar item of menu bar 1 of process \""_s +
        escaped(name) + u'"');
}

QString fileMenuScript(const QString &name, const QString &file)
{
    return SafariMenus::listScript(u"tell application \"System Events\" to get the name of every menu item of "_s +
                                   fileMenuPath(file) + u" of process \""_s + escaped(name) + u'"');
}

QString profileSubmenuScript(const QString &name, const SafariLanguage &language)
{
    return SafariMenus::listScript(u"tell application \"System Events\" to tell process \""_s + escaped(name) +
                                   u"\" to tell menu item \""_s + escaped(language.newWindow) + u"\" of "_s +
                                   fileMenuPath(language.file) + u" to get the name of every menu item of menu 1"_s);
}

QString clickItemScript(const QString &name, qsizetype number, const SafariLanguage &language, MenuLayout layout)
{
    const QString path = layout == MenuLayout::submenu ? submenuPath(language) : fileMenuPath(language.file);
    return withDelay(inFront(name, click(number, path)));
}

QString openPlaceScript(const QString &name, qint64 place, const QString &file, PlaceMeans means)
{
    constexpr qint64 lastPlaceWithKeys = 9;
    if (place > lastPlaceWithKeys || means == PlaceMeans::menuItem)
        return withDelay(inFront(name, click(place + 1, fileMenuPath(file))));
    return withDelay(inFront(name, pressPlace(place)));
}

QString ordinaryWindowScript(const QString &name)
{
    return inFront(name, pressPlace(0));
}

QString privateWindowScript(const QString &name)
{
    return inFront(name, u"keystroke \"n\" using {shift down, command down}"_s);
}

QString raiseWindowScript(const QString &name, qint64 windowID)
{
    return u"tell application \""_s + escaped(name) + u"\" to set index of window id "_s + QString::number(windowID) +
           u" to 1"_s;
}

QString closeWindowScript(const QString &name, qint64 windowID)
{
    return u"tell application \""_s + name + u"\" to close window id "_s + QString::number(windowID);
}

} // namespace vantrel::Safari
