#pragma once

#include <QProxyStyle>

namespace vantrel {

/// The application's style, with menus that scroll when they are longer than the screen. Qt's own lays them out in
/// columns, the last of which are out of reach.
class PopupMenuStyle final : public QProxyStyle {
public:
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                QStyleHintReturn *returned) const override
    {
        return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

} // namespace vantrel
