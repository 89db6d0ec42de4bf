#include "Vantrel/Interface/Settings/SymbolButton.h"

#include <QEvent>

#include <algorithm>

namespace vantrel {
namespace {

constexpr int columnWidth = 20;
constexpr int frame = 2;

} // namespace

SymbolButton::SymbolButton(const SymbolIcons &icons, QString symbol, QWidget *parent)
    : QToolButton(parent),
      icons_(icons),
      symbol_(std::move(symbol))
{
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    draw();
}

void SymbolButton::setSymbol(const QString &symbol)
{
    if (std::exchange(symbol_, symbol) != symbol)
        draw();
}

QSize SymbolButton::sizeHint() const
{
    const int side = std::max(columnWidth, iconSize().width() + (2 * frame));
    return {side, side + (2 * frame)};
}

void SymbolButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        draw();
    QToolButton::changeEvent(event);
}

void SymbolButton::draw()
{
    const int side = fontMetrics().height();
    setIconSize({side, side});
    setIcon(icons_.icon(symbol_, palette().color(QPalette::ButtonText)));
    updateGeometry();
}

} // namespace vantrel
