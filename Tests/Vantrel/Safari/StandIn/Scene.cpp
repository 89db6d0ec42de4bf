#include "Tests/Vantrel/Safari/StandIn/Scene.h"

#include <QDataStream>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel::test {

static QDataStream &operator<<(QDataStream &stream, const SafariLanguage &language)
{
    return stream << language.code << language.file << language.edit << language.newWindow << language.newPrivateWindow
                  << language.newProfileWindowFormat;
}

static QDataStream &operator>>(QDataStream &stream, SafariLanguage &language)
{
    return stream >> language.code >> language.file >> language.edit >> language.newWindow >>
           language.newPrivateWindow >> language.newProfileWindowFormat;
}

static QDataStream &operator<<(QDataStream &stream, const Scene::Window &window)
{
    return stream << window.id << window.profile << window.tabs << window.currentTab;
}

static QDataStream &operator>>(QDataStream &stream, Scene::Window &window)
{
    return stream >> window.id >> window.profile >> window.tabs >> window.currentTab;
}

static QDataStream &operator<<(QDataStream &stream, const Scene::Trouble &trouble)
{
    return stream << trouble.part << static_cast<quint8>(trouble.kind) << trouble.text << trouble.times;
}

static QDataStream &operator>>(QDataStream &stream, Scene::Trouble &trouble)
{
    quint8 kind = 0;
    stream >> trouble.part >> kind >> trouble.text >> trouble.times;
    trouble.kind = static_cast<Scene::Trouble::Kind>(kind);
    return stream;
}

QStringList Scene::menuBar() const
{
    return {u"Apple"_s, u"Safari"_s, language.file, language.edit, u"View"_s};
}

QString Scene::profileTitle(const QString &profile) const
{
    static const QRegularExpression placeholder(uR"(%(\d+\$)?@)"_s);
    const QRegularExpressionMatch match = placeholder.match(language.newProfileWindowFormat);
    QString title = language.newProfileWindowFormat;
    return title.replace(match.capturedStart(), match.capturedLength(), profile);
}

QList<Scene::Item> Scene::submenu() const
{
    QList<Item> items;
    for (const QString &profile : profiles)
        items.append({.title = profileTitle(profile), .opens = profile});
    return items;
}

QList<Scene::Item> Scene::fileMenu() const
{
    QList<Item> items = hasSubmenu ? QList<Item>{{.title = language.newWindow, .opens = u"(ordinary)"_s}} : submenu();
    items.append({.title = language.newPrivateWindow, .opens = u"(private)"_s});
    items.append(Item());
    items.append({.title = u"(...)[\\]"_s});
    return items;
}

void Scene::open(const QString &profile)
{
    if (deafClicks > 0) {
        --deafClicks;
        return;
    }
    coming.append({{.id = nextID++, .profile = profile, .tabs = {u"favorites://"_s}}, windowDelay});
}

void Scene::start()
{
    if (!isRunning)
        windows.prepend({.id = nextID++, .profile = u"(start)"_s, .tabs = {u""_s}});
    isRunning = true;
}

void Scene::wait()
{
    for (auto &[window, delay] : coming) {
        if (delay-- <= 0)
            windows.prepend(window);
    }
    coming.removeIf([](const auto &entry) { return entry.second < 0; });
}

Scene::Window *Scene::window(qint64 id)
{
    const auto window = std::ranges::find(windows, id, &Window::id);
    return window == windows.end() ? nullptr : &*window;
}

std::optional<Scene::Trouble> Scene::takeTrouble(const QString &script)
{
    for (Trouble &trouble : troubles) {
        if (trouble.times <= 0 || !script.contains(trouble.part))
            continue;
        --trouble.times;
        return trouble;
    }
    return std::nullopt;
}

Scene Scene::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("No scene at %s.", qPrintable(path));
    QDataStream stream(&file);
    Scene scene;
    stream >> scene.language >> scene.hasSubmenu >> scene.profiles >> scene.isRunning >> scene.isInFront >>
        scene.windows >> scene.deafClicks >> scene.windowDelay >> scene.coming >> scene.troubles >> scene.scripts >>
        scene.nextID;
    return scene;
}

void Scene::write(const QString &path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("The scene can't be written to %s.", qPrintable(path));
    QDataStream stream(&file);
    stream << language << hasSubmenu << profiles << isRunning << isInFront << windows << deafClicks << windowDelay
           << coming << troubles << scripts << nextID;
    if (!file.commit())
        qFatal("The scene can't be written to %s.", qPrintable(path));
}

QStringList titles(const QList<Scene::Item> &items)
{
    QStringList titles;
    for (const Scene::Item &item : items)
        titles.append(item.title);
    return titles;
}

} // namespace vantrel::test
