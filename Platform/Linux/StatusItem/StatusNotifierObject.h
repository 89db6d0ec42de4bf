#pragma once

#include "Platform/ActivationSource.h"
#include "Platform/Linux/StatusItem/IconPixmap.h"
#include "Platform/StatusItem.h"

#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>

#include <optional>

namespace vantrel {

/// A symbol as an object of org.kde.StatusNotifierItem, for panels to read. Nothing of it ever changes, so it has no
/// signals.
class StatusNotifierObject final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowID CONSTANT)
    Q_PROPERTY(QString IconName READ iconName CONSTANT)
    Q_PROPERTY(QList<vantrel::IconPixmap> IconPixmap READ iconPixmaps CONSTANT)
    Q_PROPERTY(vantrel::StatusToolTip ToolTip READ toolTip CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)

public:
    struct Look {
        QString title;
        /// Empty when no theme has the symbol.
        QString iconName;
        /// Draws the symbol, a square with a side of that many pixels.
        std::function<QImage(int pixels)> icon;
    };

    /// `menu` is where the object's menu is. `source` lives longer than this.
    StatusNotifierObject(Look look, QDBusObjectPath menu, ActivationSource &source);

    [[nodiscard]] static QString category() { return QStringLiteral("ApplicationStatus"); }
    [[nodiscard]] static QString id() { return QStringLiteral("vantrel"); }
    [[nodiscard]] QString title() const { return look_.title; }
    [[nodiscard]] static QString status() { return QStringLiteral("Active"); }
    [[nodiscard]] static int windowID() { return 0; }
    [[nodiscard]] QString iconName() const { return look_.iconName; }
    /// Also where there is a name, for panels whose theme lacks it. Drawn when first asked for.
    [[nodiscard]] QList<IconPixmap> iconPixmaps();
    [[nodiscard]] StatusToolTip toolTip() const
    {
        return {.iconName = {}, .icon = {}, .title = look_.title, .text = {}};
    }
    [[nodiscard]] QDBusObjectPath menu() const { return menu_; }
    [[nodiscard]] static bool itemIsMenu() { return true; }

    // The protocol's names.
    // NOLINTBEGIN(readability-identifier-naming)
public Q_SLOTS:
    void Activate(int x, int y);
    void ContextMenu(int x, int y);
    void SecondaryActivate(int x, int y);
    void Scroll(int delta, const QString &orientation);
    void ProvideXdgActivationToken(const QString &token);
    // NOLINTEND(readability-identifier-naming)

private:
    void leaveToMenu() const;

    Look look_;
    QDBusObjectPath menu_;
    ActivationSource &source_;
    std::optional<QList<IconPixmap>> iconPixmaps_;
};

} // namespace vantrel
