#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace vantrel {

/// How Safari names its menus in one language. Texts are used exactly as Safari's files have them. Any thread.
struct SafariLanguage {
    /// The name of Safari's localization folder without ".lproj".
    QString code;
    /// The File menu's title in the menu bar.
    QString file;
    /// The Edit menu's title in the menu bar.
    QString edit;
    /// The item of the File menu that opens an ordinary window.
    QString newWindow;
    /// The item of the File menu that opens a private window.
    QString newPrivateWindow;
    /// The item of the File menu that opens a window of a profile, with a placeholder such as "%@" for its name.
    QString newProfileWindowFormat;

    /// The one language that needs no files.
    [[nodiscard]] static const SafariLanguage &english();

    /// Whether Safari's menu bar is in this language. Its titles come in their order on screen: the system's menu, the
    /// application's, File, Edit, ….
    [[nodiscard]] bool matches(const QStringList &menuBar) const;

    /// The profile whose window an item of the File menu opens; none when it opens no profile's.
    [[nodiscard]] std::optional<QString> profileName(const QString &menuItem) const;

    /// The regular expression for the items that open a profile's window, to be matched with the whole of an item, with
    /// a group for each placeholder of the format.
    [[nodiscard]] QString itemPattern() const;

    friend bool operator==(const SafariLanguage &, const SafariLanguage &) = default;
};

} // namespace vantrel
