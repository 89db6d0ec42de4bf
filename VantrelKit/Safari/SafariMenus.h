#pragma once

#include "VantrelKit/Safari/SafariLanguage.h"

#include <QList>
#include <QUrl>

namespace vantrel {

/// What the texts of Safari's menus say. Safari lists its profiles nowhere but in its File menu, in the language that
/// it runs in. Nothing here talks to Safari. Any thread.
class SafariMenus {
public:
    SafariMenus() = delete;

    /// Where macOS keeps the localizations of Safari's menus, and those of the framework that names profiles' windows.
    [[nodiscard]] static const QUrl &appResources();
    [[nodiscard]] static const QUrl &frameworkResources();

    /// English, then the languages found in these folders, by their codes. What can't be read is left out. Reads two
    /// files for each language, so call it once.
    [[nodiscard]] static QList<SafariLanguage> loadLanguages(const QUrl &appResources, const QUrl &frameworkResources);

    /// The first language that fits the titles of the menu bar; English when none does.
    [[nodiscard]] static SafariLanguage language(const QStringList &menuBar, const QList<SafariLanguage> &languages);

    /// The profiles whose windows the items of the File menu open, in the menu's order.
    [[nodiscard]] static QStringList profileNames(const QStringList &titles, const SafariLanguage &language);

    /// The number of a profile's item in the File menu; the menu's first item, of whatever kind, is 1. None when it has
    /// no item.
    [[nodiscard]] static std::optional<qsizetype> position(const QString &profile, const QStringList &titles,
                                                           const SafariLanguage &language);

    /// The items that a script printed, one a line. Empty ones, which are a menu's separators, stay but at the end.
    [[nodiscard]] static QStringList items(const QString &lines);

    /// An AppleScript that prints the items of the list that an expression yields, one a line.
    [[nodiscard]] static QString listScript(const QString &expression);
};

} // namespace vantrel
