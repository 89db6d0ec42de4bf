#pragma once

#include "Vantrel/ProfileStore.h"
#include "Vantrel/Settings/SettingsNote.h"

#include <functional>

namespace vantrel {

/// What the settings show of a browser.
struct BrowserSection {
    /// The button that searches a Safari.
    struct Search {
        QString title;
        /// Not while it is being searched.
        bool isPossible = true;

        friend bool operator==(const Search &, const Search &) = default;
    };

    /// What the store doesn't know.
    struct Facts {
        /// Whether the user can be asked to grant access to the browser's folder.
        std::function<bool(const QString &bundleID)> canRequestAccess;
        /// Where the browser keeps its profiles; only asked when they couldn't be listed.
        std::function<QStringList(const QString &bundleID)> dataFolders;
    };

    Browser browser;
    /// Only for a Safari.
    std::optional<Search> search = std::nullopt;
    QList<SettingsNote> notes;
    /// In the user's order, with those that the menu leaves out.
    QList<Profile> profiles;

    /// One for each installed browser, in the store's order.
    [[nodiscard]] static QList<BrowserSection> all(const ProfileStore &store, const Facts &facts);

    friend bool operator==(const BrowserSection &, const BrowserSection &) = default;
};

} // namespace vantrel
