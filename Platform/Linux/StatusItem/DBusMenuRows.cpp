#include "Platform/Linux/StatusItem/DBusMenuRows.h"

#include "Platform/Linux/StatusItem/DBusMenuProperties.h"

#include <utility>

namespace vantrel {
namespace {

/// Names of the properties in which two rows differ.
QSet<QString> differences(const QVariantMap &former, const QVariantMap &current)
{
    QSet<QString> names;
    for (auto property = former.constBegin(); property != former.constEnd(); ++property) {
        if (!current.contains(property.key()))
            names.insert(property.key());
    }
    for (auto property = current.constBegin(); property != current.constEnd(); ++property) {
        if (former.value(property.key()) != *property)
            names.insert(property.key());
    }
    return names;
}

} // namespace

DBusMenuRows::Changes DBusMenuRows::replace(const Menu &menu)
{
    const QList<Key> keysOfMenu = keys(menu);
    const QList<Row> former = std::exchange(rows_, {});
    const QHash<int, qsizetype> formerPlaces = std::exchange(places_, {});
    Changes changes{.hasAny = former.size() != menu.size(), .properties = {}};
    rows_.reserve(menu.size());
    places_.reserve(menu.size());
    for (qsizetype place = 0; place < menu.size(); ++place) {
        const MenuItem &item = menu[place];
        const int number = numberFor(keysOfMenu[place]);
        rows_.append({number, dbusMenuProperties(item), item.action});
        places_.insert(number, place);
        const qsizetype formerPlace = formerPlaces.value(number, -1);
        changes.hasAny |= formerPlace != place;
        if (formerPlace < 0)
            continue;
        const auto names = differences(former[formerPlace].properties, rows_.last().properties);
        if (!names.isEmpty())
            changes.properties.insert(number, names);
    }
    changes.hasAny |= !changes.properties.isEmpty();
    return changes;
}

const DBusMenuRows::Row *DBusMenuRows::find(int number) const
{
    const auto place = places_.constFind(number);
    return place == places_.constEnd() ? nullptr : &rows_[*place];
}

QList<DBusMenuRows::Key> DBusMenuRows::keys(const Menu &menu)
{
    QHash<QString, int> countOfIDs;
    for (const MenuItem &item : menu) {
        if (item.kind == MenuItem::Kind::command)
            ++countOfIDs[item.id];
    }
    QList<Key> keys;
    keys.reserve(menu.size());
    QHash<Key, qsizetype> countOfAlike;
    for (const MenuItem &item : menu) {
        Key key{.kind = item.kind, .id = {}, .title = {}};
        if (item.kind == MenuItem::Kind::command) {
            key.id = item.id;
            if (!item.id.isEmpty() && countOfIDs.value(item.id) == 1) {
                keys.append(key);
                continue;
            }
            key.title = item.title;
        }
        const qsizetype place = ++countOfAlike[key];
        key.place = place;
        keys.append(key);
    }
    for (Key &key : keys) {
        // Rows that do nothing may take each other's number: it keeps down how much changes.
        if (key.kind == MenuItem::Kind::command && key.place > 0)
            key.count = countOfAlike.value({.kind = key.kind, .id = key.id, .title = key.title});
    }
    return keys;
}

int DBusMenuRows::numberFor(const Key &key)
{
    const auto known = numbers_.constFind(key);
    if (known != numbers_.constEnd())
        return *known;
    return *numbers_.insert(key, static_cast<int>(numbers_.size()) + 1);
}

} // namespace vantrel
