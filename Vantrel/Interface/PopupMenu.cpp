#include "Vantrel/Interface/PopupMenu.h"

#include "Vantrel/Interface/MenuIconEngine.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Qt takes an ampersand for the mark of a mnemonic, and a tabulator for what stands before the shortcut.
QString escaped(QString title)
{
    return title.replace(u'&', "&&"_L1).replace(u'\t', u' ').replace(u'\n', u' ');
}

} // namespace

PopupMenu::PopupMenu(std::function<Menu()> rows) : rows_(std::move(rows))
{
    connect(this, &QMenu::aboutToShow, this, &PopupMenu::build);
}

void PopupMenu::updateRows()
{
    if (!isVisible())
        return;
    const QString active = activeAction() ? activeAction()->objectName() : QString();
    build();
    const QList<QAction *> rows = actions();
    const auto same = std::ranges::find(rows, active, &QAction::objectName);
    if (!active.isEmpty() && same != rows.end())
        setActiveAction(*same);
}

void PopupMenu::build()
{
    clear();
    for (const MenuItem &item : rows_())
        append(item);
}

void PopupMenu::append(const MenuItem &item)
{
    switch (item.kind) {
    case MenuItem::Kind::separator: addSeparator(); return;
    case MenuItem::Kind::header: addSection(escaped(item.title)); return;
    case MenuItem::Kind::text: addAction(escaped(item.title))->setEnabled(false); return;
    case MenuItem::Kind::command: break;
    }
    QAction *row = addAction(escaped(item.title));
    row->setObjectName(item.id);
    row->setShortcut(item.shortcut);
    // Global shortcuts work by themselves; here they are only shown.
    row->setShortcutContext(Qt::WidgetShortcut);
    row->setShortcutVisibleInContextMenu(true);
    if (item.icon) {
        row->setIcon(QIcon(new MenuIconEngine(item.icon)));
        row->setIconVisibleInMenu(true);
    }
    connect(row, &QAction::triggered, this, item.action);
}

} // namespace vantrel
