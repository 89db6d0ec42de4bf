#pragma once

#include "Platform/Menu.h"
#include "Vantrel/Interface/PopupMenuStyle.h"

#include <QMenu>

namespace vantrel {

/// The program's menu where no panel shows it: built anew whenever it opens, and while it is open whenever its rows
/// change. Main thread only.
class PopupMenu final : public QMenu {
public:
    explicit PopupMenu(std::function<Menu()> rows);

    /// Opens it below a symbol on the screen, or above it where there is no room below: never over it, where a second
    /// click would choose a row.
    void popupBeside(const QRect &symbol);

    /// Builds the rows anew if the menu is open; the chosen row stays chosen if it is still there, and all rows stay in
    /// reach.
    void updateRows();

    /// The side of its rows' icons in device pixels, on the screen where it was last.
    [[nodiscard]] int iconPixels() const;

private:
    void build();
    /// Opens it with the rows that it has.
    void popupAsItIs(const QPoint &position);
    void append(const MenuItem &item);

    PopupMenuStyle style_;
    std::function<Menu()> rows_;
    bool isBuilt_ = false;
};

} // namespace vantrel
