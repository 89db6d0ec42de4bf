#pragma once

#include "Vantrel/Interface/Settings/PictureView.h"
#include "Vantrel/Interface/Settings/SymbolButton.h"
#include "Vantrel/Interface/ShortcutRecorder.h"
#include "Vantrel/Pictures/ProfileIcon.h"
#include "Vantrel/Settings/ProfileMove.h"

#include <QLineEdit>

namespace vantrel {

/// A profile in the settings: what the user can change of it.
class ProfileRow final : public QWidget {
    Q_OBJECT

public:
    struct Content {
        QString id;
        /// The name that the user sees, and that without the user's doing.
        QString displayName;
        QString ownName;
        /// With the browser's name, for those who can't see under which one the row is.
        QString title;
        bool isHidden = false;
        ProfileIcon icon;

        friend bool operator==(const Content &, const Content &) = default;
    };

    /// What it works with; all must outlive it.
    struct Environment {
        const SymbolIcons &symbols;
        std::function<QImage(const ProfileIcon &icon, int pixels)> drawIcon;
        /// A new one for a profile's shortcut; null where none can be recorded, and the command that opens the profile
        /// is offered instead.
        std::function<ShortcutRecorder *(const QString &profileID, QWidget *parent)> makeRecorder;
    };

    ProfileRow(const Environment &environment, Content content, QWidget *parent);

    [[nodiscard]] const QString &profileID() const { return content_.id; }

    /// Shows what has changed; a name that the user is editing stays.
    void setContent(const Content &content);

    /// Hands on the name that is being edited.
    void commitName();

    /// The user is doing something with it that would be lost with it.
    [[nodiscard]] bool isInUse() const;

    /// What takes the focus, in order.
    [[nodiscard]] QList<QWidget *> controls() const;

    [[nodiscard]] QWidget *menuButton() const { return more_; }

    /// The keys of its shortcut may read otherwise now.
    void refreshShortcut();

    void setDragged(bool isDragged);

Q_SIGNALS:
    void renamed(const QString &name);
    void hiddenToggled(bool isHidden);
    /// The menu of what else can be done, at a place on the screen.
    void menuAsked(const QPoint &place);
    void commandAsked();
    void moveAsked(vantrel::ProfileMove::Direction direction);
    void dragMoved(const QPoint &place);
    void dragEnded(bool isDropped);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void arrange(QWidget *shortcut);
    void showContent(const Content &content);
    [[nodiscard]] QWidget *makeCommandButton();
    void addMoveKeys();
    [[nodiscard]] QPoint menuCorner() const;
    void endDrag(bool isDropped);

    Content content_;
    PictureView *icon_;
    QLineEdit *name_;
    /// Null where shortcuts can't be recorded.
    ShortcutRecorder *recorder_ = nullptr;
    /// In the recorder's place.
    QWidget *command_ = nullptr;
    SymbolButton *hide_;
    SymbolButton *more_;
    std::optional<QPoint> pressedAt_;
    bool isDragged_ = false;
};

} // namespace vantrel
