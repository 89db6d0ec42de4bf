#include "Vantrel/Interface/PopupMenu.h"

#include "Vantrel/Interface/MenuIconEngine.h"
#include "Vantrel/KeyEquivalent.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyleOption>

#include <algorithm>
#include <cmath>
#include <tuple>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Qt takes an ampersand for the mark of a mnemonic, and a tabulator for what stands before the shortcut.
QString escaped(QString title)
{
    return title.replace(u'&', "&&"_L1).replace(u'\t', u' ').replace(u'\n', u' ');
}

/// As far as the menu's layout goes. What an icon shows is asked for whenever it is drawn.
bool looksTheSame(const MenuItem &one, const MenuItem &other)
{
    return one.kind == other.kind && one.title == other.title && one.id == other.id && one.shortcut == other.shortcut &&
           static_cast<bool>(one.icon) == static_cast<bool>(other.icon);
}

} // namespace

PopupMenu::PopupMenu(std::function<Menu()> rows, TrayHost host) : rows_(std::move(rows)), host_(host)
{
    setStyle(&style_);
    connect(this, &QMenu::aboutToShow, this, [this] {
        if (!isBuilt_)
            build();
        isOpen_ = true;
    });
    connect(this, &QMenu::aboutToHide, this, [this] { isOpen_ = false; });
    // The system opens no menu without rows. This one is never seen.
    if (host_ == TrayHost::menuBar)
        appendText(u"Vantrel"_s);
}

void PopupMenu::popupInFront(const QPoint &position, ActivationPolicy &policy)
{
    policy.activate();
    popup(position);
}

void PopupMenu::popupBeside(const QRect &symbol)
{
    build();
    const QScreen *screen = QGuiApplication::screenAt(symbol.center());
    const bool hasScreen = screen != nullptr;
    const QRect area = hasScreen ? screen->availableGeometry() : QRect();
    const int height = sizeHint().height();
    const bool fitsBelow = !hasScreen || symbol.bottom() + height <= area.bottom();
    const bool fitsAbove = hasScreen && symbol.top() - height >= area.top();
    popupAsItIs(fitsBelow || !fitsAbove ? symbol.bottomLeft() + QPoint(0, 1) : symbol.topLeft() - QPoint(0, height));
}

void PopupMenu::popupAsItIs(const QPoint &position)
{
    isBuilt_ = true;
    popup(position);
    isBuilt_ = false;
}

void PopupMenu::prepare()
{
    if (isOpen_)
        return;
    build();
    // Without a window, opening lays out all rows once more for the screen.
    std::ignore = winId();
    // Drawn out of sight: fonts and code are then there when the user waits for them.
    constexpr int someRows = 400;
    const QSize size = sizeHint();
    resize(size);
    QImage seen(size.width(), std::min(size.height(), someRows), QImage::Format_ARGB32_Premultiplied);
    render(&seen, {}, seen.rect());
}

bool PopupMenu::event(QEvent *event)
{
    // Qt lays out all rows once more when the screen has less room than they take, on which nothing depends in a menu
    // that scrolls. Some styles give it a shape then.
    if (event->type() == QEvent::Resize && !hasShape())
        return QWidget::event(event); // NOLINT(bugprone-parent-virtual-call): QMenu's is the one to leave out.
    return QMenu::event(event);
}

bool PopupMenu::hasShape() const
{
    QStyleOption option;
    option.initFrom(this);
    QStyleHintReturnMask shape;
    return style()->styleHint(QStyle::SH_Menu_Mask, &option, this, &shape) != 0;
}

void PopupMenu::updateRows()
{
    if (!isOpen_)
        return;
    if (isVisible())
        updateDrawnRows();
    else
        build();
}

void PopupMenu::updateDrawnRows()
{
    const QString active = activeAction() ? activeAction()->objectName() : QString();
    build();
    const QList<QAction *> rows = actions();
    const auto same = std::ranges::find(rows, active, &QAction::objectName);
    if (!active.isEmpty() && same != rows.end())
        setActiveAction(*same);
    // Opening it once more lays it out for the screen, with arrows to scroll if need be.
    if (!screen()->availableGeometry().contains(QRect(pos(), sizeHint())))
        popupAsItIs(pos());
}

int PopupMenu::iconPixels() const
{
    return static_cast<int>(
        std::ceil(style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) * devicePixelRatioF()));
}

void PopupMenu::build()
{
    Menu rows = rows_();
    const bool isSame = std::ranges::equal(rows, shown_, looksTheSame);
    shown_ = std::move(rows);
    if (isSame)
        update();
    else
        makeRows();
}

void PopupMenu::makeRows()
{
    const QList<QAction *> former = actions();
    for (qsizetype number = 0; number < shown_.size(); ++number)
        append(number);
    // Only now: a menu that has shrunk away from below the pointer meanwhile may lose the focus, and close with it.
    qDeleteAll(former);
}

void PopupMenu::append(qsizetype number)
{
    const MenuItem &item = shown_[number];
    switch (item.kind) {
    case MenuItem::Kind::separator: addSeparator(); return;
    case MenuItem::Kind::header: appendHeader(item.title); return;
    case MenuItem::Kind::text: appendText(item.title); return;
    case MenuItem::Kind::command: appendCommand(number); return;
    }
}

void PopupMenu::appendCommand(qsizetype number)
{
    const MenuItem &item = shown_[number];
    QAction *row = addAction(escaped(item.title));
    // Qt by itself writes Meta for Super. A menu bar has signs for the keys.
    if (!item.shortcut.isEmpty() && host_ != TrayHost::menuBar)
        row->setText(row->text() + u'\t' + keyText(item.shortcut));
    row->setObjectName(item.id);
    // Where the menu bar is the system's, Qt would look for the rows that belong elsewhere by their titles.
    row->setMenuRole(QAction::NoRole);
    row->setShortcut(item.shortcut);
    // Global shortcuts work by themselves; here they are only shown.
    row->setShortcutContext(Qt::WidgetShortcut);
    row->setShortcutVisibleInContextMenu(true);
    if (item.icon) {
        row->setIcon(QIcon(new MenuIconEngine([this, number](int pixels) { return icon(number, pixels); })));
        row->setIconVisibleInMenu(true);
    }
    connect(row, &QAction::triggered, this, [this, number] {
        // A copy: what it does may change the rows.
        const auto action = shown_[number].action;
        action();
    });
}

QImage PopupMenu::icon(qsizetype number, int pixels) const
{
    // Rows that are about to go may be asked for once more.
    if (number >= shown_.size() || !shown_[number].icon)
        return {};
    return shown_[number].icon(pixels);
}

void PopupMenu::appendHeader(const QString &title)
{
    // In a menu bar separators show no text.
    if (host_ == TrayHost::menuBar)
        appendText(title);
    else
        addSection(escaped(title));
}

void PopupMenu::appendText(const QString &title)
{
    addAction(escaped(title))->setEnabled(false);
}

} // namespace vantrel
