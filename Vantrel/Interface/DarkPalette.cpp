#include "Vantrel/Interface/DarkPalette.h"

#include <QApplication>

namespace vantrel {

QPalette darkPalette()
{
    const QColor window(0x2b, 0x2b, 0x2e);
    const QColor button(0x44, 0x44, 0x49);
    // What can be written and ticked in is darker than what it lies on.
    const QColor base(0x1e, 0x1e, 0x20);
    const QColor text(0xf2, 0xf2, 0xf2);
    const QColor highlight(0x3d, 0x84, 0xe6);
    const QColor faint(0x96, 0x96, 0x9c);
    // The shades of buttons and frames are made from that of buttons.
    QPalette palette(text, button, button.lighter(150), window.darker(140), window.darker(120), text, Qt::white, base,
                     window);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, highlight.lighter(130));
    palette.setColor(QPalette::LinkVisited, highlight.lighter(130));
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::ToolTipBase, button);
    palette.setColor(QPalette::ToolTipText, text);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, faint);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, window.lighter(150));
    return palette;
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

void setDark(bool isDark)
{
    // The toolkit's own.
    QApplication::setPalette(QPalette());
    if (isDark && !vantrel::isDark(QApplication::palette()))
        QApplication::setPalette(darkPalette());
}

} // namespace vantrel
