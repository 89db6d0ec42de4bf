#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace vantrel {

/// What a launcher's desktop entry says (freedesktop.org Desktop Entry Specification).
struct LauncherEntry {
    struct Action {
        QString name;
        /// The program, then its arguments.
        QStringList command;
    };

    QString name;
    QString comment;
    /// The icon's name in the theme.
    QString icon;
    /// The program, then its arguments; dropped links follow them.
    QStringList command;
    std::optional<Action> privateWindow = std::nullopt;
    QString profileID;

    /// The file's content.
    [[nodiscard]] QByteArray text() const;
};

} // namespace vantrel
