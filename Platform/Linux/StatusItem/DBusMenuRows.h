#pragma once

#include "Platform/Menu.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QVariantMap>

namespace vantrel {

/// A menu's rows with the numbers by which hosts call them.
///
/// A host may hold numbers of a menu that has changed since, so a number is only ever given to one row: a command keeps
/// it for good, and one that can't be told from others by its id gets another as soon as it could be taken for one of
/// them.
class DBusMenuRows {
public:
    struct Row {
        /// From 1 on; 0 is the menu itself.
        int number = 0;
        QVariantMap properties;
        std::function<void()> action;
    };

    struct Changes {
        /// Rows were added, removed or moved, or have other properties.
        bool hasAny = false;
        /// What rows that stayed have new, changed or no longer.
        QMap<int, QSet<QString>> properties;
    };

    /// Takes other rows; what they do is always theirs from now on.
    [[nodiscard]] Changes replace(const Menu &menu);

    [[nodiscard]] const QList<Row> &rows() const { return rows_; }
    /// Null when no row has that number now.
    [[nodiscard]] const Row *find(int number) const;

private:
    struct Key {
        MenuItem::Kind kind = MenuItem::Kind::command;
        QString id;
        QString title;
        /// Which of the rows that are alike otherwise, and how many these are; 0 when the id alone tells.
        qsizetype place = 0;
        qsizetype count = 0;

        friend bool operator==(const Key &, const Key &) = default;
        friend size_t qHash(const Key &key, size_t seed)
        {
            return qHashMulti(seed, static_cast<int>(key.kind), key.id, key.title, key.place, key.count);
        }
    };

    [[nodiscard]] static QList<Key> keys(const Menu &menu);
    [[nodiscard]] int numberFor(const Key &key);

    QList<Row> rows_;
    QHash<int, qsizetype> places_;
    QHash<Key, int> numbers_;
};

} // namespace vantrel
