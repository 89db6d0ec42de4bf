#pragma once

#include "VantrelKit/Safari/SafariLanguage.h"

#include <QList>
#include <QStringList>

#include <optional>

namespace vantrel::test {

/// A Safari as the stand-in for osascript plays it. Kept in a file, which the stand-in and the test take turns at.
struct Scene {
    struct Window {
        qint64 id = 0;
        /// The profile's name; "(private)" for a private window, "(ordinary)" for one opened by the ordinary keys.
        QString profile;
        QStringList tabs;
        qint64 currentTab = 0;
    };

    /// An item of a menu and the window that it opens.
    struct Item {
        QString title;
        std::optional<QString> opens = std::nullopt;
    };

    /// What goes wrong with the next scripts that hold a text.
    struct Trouble {
        enum class Kind : std::uint8_t { error, silence, hang, flood, garbage };

        QString part;
        Kind kind = Kind::error;
        QString text = {};
        int times = 1;
    };

    SafariLanguage language = SafariLanguage::english();
    bool hasSubmenu = false;
    QStringList profiles;
    bool isRunning = true;
    bool isInFront = false;
    /// The front one first.
    QList<Window> windows;
    /// How many clicks and keys open nothing.
    int deafClicks = 0;
    /// How often windows are asked for before a new one is there.
    int windowDelay = 0;
    /// Windows that are on their way, with what is left of their delay.
    QList<std::pair<Window, int>> coming;
    QList<Trouble> troubles;
    /// All scripts that came.
    QStringList scripts;
    qint64 nextID = 1000;

    [[nodiscard]] QStringList menuBar() const;
    [[nodiscard]] QList<Item> fileMenu() const;
    [[nodiscard]] QList<Item> submenu() const;
    [[nodiscard]] QString profileTitle(const QString &profile) const;

    void open(const QString &profile);
    /// Starts it with a window of its own, unless it runs.
    void start();
    /// Lets time pass for windows that are on their way.
    void wait();
    [[nodiscard]] Window *window(qint64 id);
    /// The trouble that a script runs into, which is then used up.
    [[nodiscard]] std::optional<Trouble> takeTrouble(const QString &script);

    [[nodiscard]] static Scene read(const QString &path);
    void write(const QString &path) const;
};

[[nodiscard]] QStringList titles(const QList<Scene::Item> &items);

} // namespace vantrel::test
