#pragma once

#include "Platform/ActivationSource.h"
#include "Platform/Linux/StatusItem/DBusMenuRows.h"
#include "Platform/Linux/StatusItem/DBusMenuTypes.h"

#include <QDBusContext>
#include <QObject>

#include <optional>

namespace vantrel {

/// A menu as an object of com.canonical.dbusmenu, for one host or several to draw. Has rows from the first call on that
/// needs them.
class DBusMenuObject final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    /// `menu` gives the rows as they are now. `source` lives longer than this.
    DBusMenuObject(std::function<Menu()> menu, ActivationSource &source);

    /// The menu may have other rows; hosts are told in the loop's next turn if so.
    void update();

    [[nodiscard]] static uint version() { return 3; }
    [[nodiscard]] static QString textDirection();
    [[nodiscard]] static QString status() { return QStringLiteral("normal"); }
    [[nodiscard]] static QStringList iconThemePath() { return {}; }

    // The protocol's names, and for moc and Qt DBus types with their full ones.
    // NOLINTBEGIN(readability-identifier-naming)
public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames, vantrel::DBusMenuLayout &layout);
    QList<vantrel::DBusMenuItem> GetGroupProperties(const QList<int> &ids, const QStringList &propertyNames);
    QDBusVariant GetProperty(int id, const QString &name);
    void Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp);
    QList<int> EventGroup(const QList<vantrel::DBusMenuEvent> &events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors);

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent);
    void ItemsPropertiesUpdated(const QList<vantrel::DBusMenuItem> &updatedProps,
                                const QList<vantrel::DBusMenuItemKeys> &removedProps);
    // NOLINTEND(readability-identifier-naming)

private:
    void requireRows();
    /// False when the rows are what they were.
    bool rebuild();
    void scheduleTurn();
    void takeTurn();
    void announce();
    [[nodiscard]] bool has(int id) const;
    [[nodiscard]] QVariantMap properties(int id, const QStringList &names) const;
    /// False when there is no such row.
    bool handle(const DBusMenuEvent &event);
    void refuse(int id) const;

    std::function<Menu()> menu_;
    ActivationSource &source_;
    DBusMenuRows rows_;
    uint revision_ = 1;
    bool hasRows_ = false;
    /// The rows are to be built again in the next turn.
    bool isStale_ = false;
    /// What hosts have not been told yet.
    std::optional<QMap<int, QSet<QString>>> unannounced_;
};

} // namespace vantrel
