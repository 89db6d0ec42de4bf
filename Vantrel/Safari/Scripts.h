#pragma once

#include "VantrelKit/Safari/SafariLanguage.h"

#include <cstdint>

/// The AppleScripts that drive Safari. Pure. `name` is the application's, which is also its process's.
namespace vantrel::Safari {

/// Where Safari lists its profiles.
enum class MenuLayout : std::uint8_t {
    /// In the File menu itself.
    flat,
    /// In a menu of its own beneath the File menu's first item.
    submenu,
};

/// How a profile is chosen when only its place among the profiles is known.
enum class PlaceMeans : std::uint8_t {
    /// Its shortcut, where it has one: the first ten places do.
    keys,
    menuItem,
};

/// These print the titles of items, one a line.
[[nodiscard]] QString menuBarScript(const QString &name);
[[nodiscard]] QString fileMenuScript(const QString &name, const QString &file);
[[nodiscard]] QString profileSubmenuScript(const QString &name, const SafariLanguage &language);

/// Chooses an item of the menu that lists the profiles; the first one is 1.
[[nodiscard]] QString clickItemScript(const QString &name, qsizetype number, const SafariLanguage &language,
                                      MenuLayout layout);
/// Opens the profile at a place; the first one is 0.
[[nodiscard]] QString openPlaceScript(const QString &name, qint64 place, const QString &file, PlaceMeans means);
[[nodiscard]] QString ordinaryWindowScript(const QString &name);
[[nodiscard]] QString privateWindowScript(const QString &name);

[[nodiscard]] QString raiseWindowScript(const QString &name, qint64 windowID);
[[nodiscard]] QString closeWindowScript(const QString &name, qint64 windowID);

} // namespace vantrel::Safari
