#pragma once

#include <QImage>
#include <QKeySequence>
#include <QList>
#include <QString>

#include <cstdint>
#include <functional>

namespace vantrel {

/// One row of a menu, free of any toolkit.
struct MenuItem {
    enum class Kind : std::uint8_t {
        /// Can't be chosen; says something.
        text,
        /// Can't be chosen; names the rows below it.
        header,
        command,
        separator,
    };

    Kind kind = Kind::command;
    /// As the user reads it: every `&` and `_` stands for itself.
    QString title = {};
    /// The same for the same row whenever the menu is built again; empty for rows that are no commands.
    QString id = {};
    /// Shown beside the title; empty for none.
    QKeySequence shortcut = {};
    /// Draws the icon, a square with a side of that many device pixels; empty for rows without one.
    std::function<QImage(int pixels)> icon = {};
    /// The same as a PNG file, for a menu that another program shows; empty for rows without one.
    std::function<QByteArray(int pixels)> iconPNG = {};
    /// What choosing the row does; empty for rows that are no commands.
    std::function<void()> action = {};
};

using Menu = QList<MenuItem>;

} // namespace vantrel
