#pragma once

#include "Vantrel/Actions/ProfileEntity.h"
#include "Vantrel/ProfileStore.h"

#include <QHash>
#include <QList>
#include <QObject>

namespace vantrel {

/// Every profile of the store under the names that people search for. They are put into the form that searches compare
/// when the store changes, so that a search itself is quick. Main thread only.
class ProfileTitles final : public QObject {
    Q_OBJECT

public:
    struct Row {
        Profile profile;
        ProfileEntity entity;
        /// Of the name that the user sees.
        QString foldedName = {};
        /// Of the full title.
        QString foldedTitle = {};
        bool isHidden = false;
        bool isInstalled = false;

        friend bool operator==(const Row &, const Row &) = default;
    };

    /// The store must outlive it.
    explicit ProfileTitles(const ProfileStore &store);

    /// Browser by browser as the store has them, each browser's profiles in the user's order; those of browsers that
    /// aren't installed come last. Valid until the store changes.
    [[nodiscard]] const QList<Row> &rows();

    /// Null when the store has no such profile. Valid until the store changes.
    [[nodiscard]] const Row *find(const QString &id);

Q_SIGNALS:
    /// The rows aren't what they were. Told from the event loop, once for all changes of a turn.
    void changed();

private:
    void refresh();
    void takeTurn();
    [[nodiscard]] QList<Row> currentRows() const;
    [[nodiscard]] Row currentRow(const Profile &profile) const;
    /// Null when there is none with that id.
    [[nodiscard]] const Row *knownRow(const QString &id) const;

    const ProfileStore &store_;
    QList<Row> rows_;
    QHash<QString, qsizetype> positions_;
    bool isStale_ = false;
    /// Nobody was told yet that the rows have changed.
    bool isUnannounced_ = false;
};

} // namespace vantrel
