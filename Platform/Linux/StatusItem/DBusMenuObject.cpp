#include "Platform/Linux/StatusItem/DBusMenuObject.h"

#include <QDBusError>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The menu itself, of which all rows are children.
constexpr int root = 0;

/// An empty list of names stands for all.
QVariantMap filtered(const QVariantMap &properties, const QStringList &names)
{
    if (names.isEmpty())
        return properties;
    QVariantMap kept;
    for (const QString &name : names) {
        if (const auto property = properties.constFind(name); property != properties.constEnd())
            kept.insert(name, *property);
    }
    return kept;
}

} // namespace

DBusMenuObject::DBusMenuObject(std::function<Menu()> menu, ActivationSource &source)
    : menu_(std::move(menu)),
      source_(source)
{
    registerDBusMenuTypes();
}

void DBusMenuObject::update()
{
    // Nobody has seen rows that were never built.
    if (hasRows_ && !std::exchange(isStale_, true))
        scheduleTurn();
}

QString DBusMenuObject::textDirection()
{
    return QGuiApplication::isRightToLeft() ? u"rtl"_s : u"ltr"_s;
}

uint DBusMenuObject::GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                               DBusMenuLayout &layout)
{
    requireRows();
    if (!has(parentId)) {
        refuse(parentId);
        return 0;
    }
    layout = {.id = parentId, .properties = properties(parentId, propertyNames), .children = {}};
    if (parentId == root && recursionDepth != 0) {
        layout.children.reserve(rows_.rows().size());
        for (const DBusMenuRows::Row &row : rows_.rows())
            layout.children.append({row.number, filtered(row.properties, propertyNames), {}});
    }
    return revision_;
}

QList<DBusMenuItem> DBusMenuObject::GetGroupProperties(const QList<int> &ids, const QStringList &propertyNames)
{
    requireRows();
    QList<DBusMenuItem> items;
    if (ids.isEmpty()) {
        items.append({root, properties(root, propertyNames)});
        for (const DBusMenuRows::Row &row : rows_.rows())
            items.append({row.number, filtered(row.properties, propertyNames)});
    }
    for (const int id : ids) {
        if (has(id))
            items.append({id, properties(id, propertyNames)});
    }
    return items;
}

QDBusVariant DBusMenuObject::GetProperty(int id, const QString &name)
{
    requireRows();
    const QVariant value = properties(id, {}).value(name);
    if (!value.isValid())
        refuse(id);
    // A variant of the bus can't be empty; with an error as the reply it isn't sent.
    return QDBusVariant(value.isValid() ? value : QString());
}

void DBusMenuObject::Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp)
{
    if (!handle({.id = id, .type = eventId, .data = data, .timestamp = timestamp}))
        refuse(id);
}

QList<int> DBusMenuObject::EventGroup(const QList<DBusMenuEvent> &events)
{
    QList<int> unknown;
    for (const DBusMenuEvent &event : events) {
        if (!handle(event))
            unknown.append(event.id);
    }
    // As the protocol has it: an error only when no event could be delivered.
    if (!unknown.isEmpty() && unknown.size() == events.size())
        refuse(unknown.first());
    return unknown;
}

bool DBusMenuObject::AboutToShow(int id)
{
    if (id == root)
        return rebuild();
    if (!has(id))
        refuse(id);
    return false;
}

QList<int> DBusMenuObject::AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors)
{
    QList<int> changed;
    if (ids.contains(root) && rebuild())
        changed.append(root);
    std::ranges::copy_if(ids, std::back_inserter(idErrors), [this](int id) { return !has(id); });
    if (!idErrors.isEmpty() && idErrors.size() == ids.size())
        refuse(idErrors.first());
    return changed;
}

void DBusMenuObject::requireRows()
{
    if (hasRows_)
        return;
    hasRows_ = true;
    // The first rows are news to nobody: who asks gets them.
    std::ignore = rows_.replace(menu_());
}

bool DBusMenuObject::rebuild()
{
    hasRows_ = true;
    isStale_ = false;
    const DBusMenuRows::Changes changes = rows_.replace(menu_());
    if (!changes.hasAny)
        return false;
    ++revision_;
    if (!unannounced_) {
        unannounced_.emplace();
        scheduleTurn();
    }
    for (auto change = changes.properties.constBegin(); change != changes.properties.constEnd(); ++change)
        (*unannounced_)[change.key()] |= *change;
    return true;
}

void DBusMenuObject::scheduleTurn()
{
    QMetaObject::invokeMethod(this, &DBusMenuObject::takeTurn, Qt::QueuedConnection);
}

void DBusMenuObject::takeTurn()
{
    if (isStale_)
        rebuild();
    announce();
}

void DBusMenuObject::announce()
{
    const auto changes = std::exchange(unannounced_, std::nullopt);
    if (!changes)
        return;
    QList<DBusMenuItem> updated;
    QList<DBusMenuItemKeys> removed;
    for (auto change = changes->constBegin(); change != changes->constEnd(); ++change) {
        const DBusMenuRows::Row *row = rows_.find(change.key());
        if (row == nullptr)
            continue;
        const QStringList names = change->values();
        const QVariantMap values = filtered(row->properties, names);
        if (!values.isEmpty())
            updated.append({row->number, values});
        QStringList gone;
        std::ranges::copy_if(names, std::back_inserter(gone), [&](const auto &name) { return !values.contains(name); });
        if (!gone.isEmpty())
            removed.append({row->number, gone});
    }
    // Hosts don't drop a property because a new layout lacks it, so these come first and on their own.
    if (!updated.isEmpty() || !removed.isEmpty())
        Q_EMIT ItemsPropertiesUpdated(updated, removed);
    Q_EMIT LayoutUpdated(revision_, root);
}

bool DBusMenuObject::has(int id) const
{
    return id == root || rows_.find(id) != nullptr;
}

QVariantMap DBusMenuObject::properties(int id, const QStringList &names) const
{
    if (id == root)
        return filtered({{u"children-display"_s, u"submenu"_s}}, names);
    const DBusMenuRows::Row *row = rows_.find(id);
    return row == nullptr ? QVariantMap() : filtered(row->properties, names);
}

bool DBusMenuObject::handle(const DBusMenuEvent &event)
{
    // What is chosen must still be there.
    if (isStale_)
        rebuild();
    if (event.id == root)
        return true;
    const DBusMenuRows::Row *row = rows_.find(event.id);
    if (row == nullptr)
        return false;
    if (event.type != "clicked"_L1 || !row->action)
        return true;
    if (event.timestamp != 0)
        source_.noteTime(event.timestamp);
    // The host waits for the reply, and an action may take its time.
    QMetaObject::invokeMethod(this, [action = row->action] { action(); }, Qt::QueuedConnection);
    return true;
}

void DBusMenuObject::refuse(int id) const
{
    sendErrorReply(QDBusError::InvalidArgs, u"Row %1 has no such property or doesn't exist (any longer)."_s.arg(id));
}

} // namespace vantrel
