#pragma once

#include "Platform/Menu.h"

#include <QMenu>

namespace vantrel {

/// The program's menu where no panel shows it: built anew whenever it opens, and while it is open whenever its rows
/// change. Main thread only.
class PopupMenu final : public QMenu {
public:
    explicit PopupMenu(std::function<Menu()> rows);

    /// Builds the rows anew if the menu is open; the chosen row stays chosen if it is still there.
    void updateRows();

private:
    void build();
    void append(const MenuItem &item);

    std::function<Menu()> rows_;
};

} // namespace vantrel
