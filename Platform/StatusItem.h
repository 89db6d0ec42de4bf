#pragma once

#include "Platform/Menu.h"

namespace vantrel {

/// The program's symbol in a panel that draws symbol and menu by itself. Main thread only.
class StatusItem {
public:
    struct Content {
        /// What screen readers and tooltips say.
        QString title;
        /// The symbol in the icon theme, for panels that colour it by themselves.
        QString iconName;
        /// Draws the symbol for panels that don't know the name, a square with a side of that many pixels.
        std::function<QImage(int pixels)> icon;
        /// The rows as they are now; asked for each time the menu opens.
        std::function<Menu()> menu;
    };

    /// The side for which rows are asked for their `iconPNG`. Panels draw icons at 16 logical pixels and scale down
    /// what is larger, so that this is sharp on dense screens too.
    static constexpr int menuIconPixels = 32;

    virtual ~StatusItem() = default;

    /// Shows the symbol as soon as there is a panel, and again whenever one comes. `shownChanged` is called soon with
    /// whether there is one now, and later whenever that changes; from the event loop, never from within `start`. Call
    /// once.
    virtual void start(Content content, std::function<void(bool isShown)> shownChanged) = 0;

    /// The menu has other rows now. An open one follows.
    virtual void updateMenu() = 0;
};

} // namespace vantrel
