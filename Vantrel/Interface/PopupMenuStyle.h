#pragma once

#include <QProxyStyle>

namespace vantrel {

/// The application's style, with two changes. Menus scroll when they are longer than the screen: Qt's own lays them out
/// in columns, the last of which are out of reach. And they stay open when Alt is pressed, which may begin a shortcut.
class PopupMenuStyle final : public QProxyStyle {
public:
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                QStyleHintReturn *returned) const override
    {
        switch (hint) {
        case SH_Menu_Scrollable: return 1;
        case SH_MenuBar_AltKeyNavigation: return 0;
        default: return QProxyStyle::styleHint(hint, option, widget, returned);
        }
    }
};

} // namespace vantrel
