#pragma once

#include "Platform/ActivationPolicy.h"
#include "Platform/Menu.h"
#include "Platform/TrayHost.h"
#include "Vantrel/Interface/PopupMenuStyle.h"

#include <QMenu>

namespace vantrel {

/// The program's menu where no panel shows it: asks for its rows whenever it opens, and while it is open whenever they
/// change. In a menu bar the system draws and opens it, and this widget stays hidden; only its signals tell that it is
/// open. Main thread only.
class PopupMenu final : public QMenu {
public:
    PopupMenu(std::function<Menu()> rows, TrayHost host);

    /// Opens it there, drawn by the toolkit. The program is brought to the front first: the windows of another one that
    /// is there would be before the menu, and have the keyboard.
    void popupInFront(const QPoint &position, ActivationPolicy &policy);

    /// Opens it below a symbol on the screen, or above it where there is no room below: never over it, where a second
    /// click would choose a row.
    void popupBeside(const QRect &symbol);

    /// Makes and lays out the rows in advance, so that opening it takes less time. Does nothing while it is open.
    void prepare();

    /// Asks for the rows again if the menu is open. In one that the toolkit draws the chosen row stays chosen if it is
    /// still there, and all rows stay in reach.
    void updateRows();

    /// The side of its rows' icons in device pixels, on the screen where it was last.
    [[nodiscard]] int iconPixels() const;

protected:
    bool event(QEvent *event) override;

private:
    /// Asks for the rows; only when some look otherwise than those that are there, all are made anew.
    void build();
    void makeRows();
    [[nodiscard]] bool hasShape() const;
    /// Opens it with the rows that it has.
    void popupAsItIs(const QPoint &position);
    void updateDrawnRows();
    void append(qsizetype number);
    void appendCommand(qsizetype number);
    [[nodiscard]] QImage icon(qsizetype number, int pixels) const;
    void appendHeader(const QString &title);
    void appendText(const QString &title);

    PopupMenuStyle style_;
    std::function<Menu()> rows_;
    /// What the actions stand for, in their order.
    Menu shown_;
    TrayHost host_;
    bool isBuilt_ = false;
    /// The widget is not visible while the system shows the menu.
    bool isOpen_ = false;
};

} // namespace vantrel
