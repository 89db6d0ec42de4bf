#pragma once

#include "Vantrel/Interface/Settings/BrowserHeader.h"
#include "Vantrel/Interface/Settings/NoteView.h"
#include "Vantrel/Interface/Settings/ProfileRow.h"
#include "Vantrel/Settings/BrowserSection.h"
#include "Vantrel/Settings/SectionLayout.h"

#include <QBasicTimer>
#include <QHash>
#include <QScrollArea>

namespace vantrel {

class ProfilesCanvas;

/// The scrolling list of browsers and their profiles. Rows are made when they are about to be seen, so that a thousand
/// of them open at once; those that the user is working in stay.
class ProfilesView final : public QScrollArea {
    Q_OBJECT

public:
    /// What it works with; all must outlive it.
    struct Environment {
        const SymbolIcons &symbols;
        ProfileRow::Environment row;
        std::function<ProfileRow::Content(const Profile &profile)> contentOf;
        std::function<QImage(const Browser &browser, int pixels)> browserIcon;
    };

    explicit ProfilesView(Environment environment, QWidget *parent = nullptr);

    /// Shows these from now on. What the user is doing goes on: editing, scrolling, and where the focus is.
    void setSections(const QList<BrowserSection> &sections);

    /// Makes all rows anew.
    void rebuildRows();

    /// Shortcuts may read otherwise now.
    void refreshShortcuts();

    /// Hands on the names that are being edited.
    void commitNames();

    /// Scrolls to a profile's row; null when there is none.
    ProfileRow *showProfile(const QString &profileID);

Q_SIGNALS:
    void searchAsked(const QString &bundleID);
    void noteActionAsked(const QString &bundleID, vantrel::SettingsNote::Action action);
    /// As the profile was when its row was made; it may have gone meanwhile.
    void renamed(const vantrel::Profile &profile, const QString &name);
    void hiddenToggled(const QString &profileID, bool isHidden);
    void menuAsked(const QString &profileID, const QPoint &place);
    void commandAsked(const QString &profileID);
    void moveAsked(const QString &profileID, vantrel::ProfileMove::Direction direction);
    /// A profile was dragged to another place among those of its browser.
    void dropped(const vantrel::ProfileMove &move);

protected:
    bool focusNextPrevChild(bool next) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    /// A browser's parts above its rows.
    struct Heading {
        BrowserHeader *header = nullptr;
        QList<SettingsNote> shownNotes;
        QList<NoteView *> notes;
    };
    struct Drag {
        QString profileID;
        QPoint place;
        SectionLayout::Row row;
        qsizetype destination = 0;
    };

    void updateHeadings();
    [[nodiscard]] Heading makeHeading(const BrowserSection &section);
    void setNotes(Heading &heading, const BrowserSection &section);
    void arrange();
    [[nodiscard]] SectionLayout measure();
    void placeHeadings();
    void showRows();
    [[nodiscard]] ProfileRow *rowAt(SectionLayout::Row row);
    [[nodiscard]] ProfileRow *makeRow(const Profile &profile);
    void dropOtherRows(const QSet<QString> &seen);
    void drop(const QList<ProfileRow *> &rows);
    void orderFocus();
    [[nodiscard]] std::optional<SectionLayout::Row> positionOf(const QString &profileID) const;
    void place(QWidget *part, int top, int height);
    void drag(const QString &profileID, const QPoint &place);
    void endDrag(bool isDropped);

    Environment environment_;
    ProfilesCanvas *canvas_;
    QList<BrowserSection> sections_;
    /// By the browsers' identifiers.
    QHash<QString, Heading> headings_;
    SectionLayout layout_;
    /// By the profiles' ids.
    QHash<QString, ProfileRow *> rows_;
    QHash<QString, SectionLayout::Row> positions_;
    std::optional<Drag> drag_;
    QBasicTimer scrolling_;
    bool isArranging_ = false;
};

} // namespace vantrel
