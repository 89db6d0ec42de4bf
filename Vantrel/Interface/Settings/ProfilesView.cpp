#include "Vantrel/Interface/Settings/ProfilesView.h"

#include "Vantrel/Interface/Settings/ProfilesCanvas.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace vantrel {
namespace {

constexpr int margin = 12;
/// Rows this far out of sight are made: the keyboard's next stop is always there.
constexpr int rowsBeyond = 4;

} // namespace

ProfilesView::ProfilesView(Environment environment, QWidget *parent)
    : QScrollArea(parent),
      environment_(std::move(environment)),
      canvas_(new ProfilesCanvas)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(canvas_);
    viewport()->setAutoFillBackground(false);
    canvas_->setAutoFillBackground(false);
}

void ProfilesView::setSections(const QList<BrowserSection> &sections)
{
    sections_ = sections;
    positions_.clear();
    for (qsizetype section = 0; section < sections_.size(); ++section) {
        for (qsizetype index = 0; index < sections_[section].profiles.size(); ++index)
            positions_.insert(sections_[section].profiles[index].id(), {section, index});
    }
    for (ProfileRow *row : std::as_const(rows_)) {
        if (const auto position = positionOf(row->profileID()))
            row->setContent(environment_.contentOf(sections_[position->section].profiles[position->index]));
    }
    updateHeadings();
    arrange();
}

std::optional<SectionLayout::Row> ProfilesView::positionOf(const QString &profileID) const
{
    const auto found = positions_.constFind(profileID);
    return found == positions_.constEnd() ? std::nullopt : std::optional(*found);
}

void ProfilesView::updateHeadings()
{
    QHash<QString, Heading> kept;
    for (const BrowserSection &section : std::as_const(sections_)) {
        Heading heading = headings_.take(section.browser.bundleID);
        if (!heading.header)
            heading = makeHeading(section);
        heading.header->setSection(section);
        setNotes(heading, section);
        kept.insert(section.browser.bundleID, heading);
    }
    for (const Heading &gone : std::as_const(headings_)) {
        gone.header->deleteLater();
        for (NoteView *note : gone.notes)
            note->deleteLater();
    }
    headings_ = kept;
}

ProfilesView::Heading ProfilesView::makeHeading(const BrowserSection &section)
{
    const auto icon = [this, browser = section.browser](int pixels) {
        return environment_.browserIcon(browser, pixels);
    };
    Heading heading{.header = new BrowserHeader(section, icon, canvas_), .shownNotes = {}, .notes = {}};
    connect(heading.header, &BrowserHeader::searchAsked, this,
            [this, bundleID = section.browser.bundleID] { Q_EMIT searchAsked(bundleID); });
    heading.header->show();
    return heading;
}

void ProfilesView::setNotes(Heading &heading, const BrowserSection &section)
{
    if (heading.shownNotes == section.notes)
        return;
    for (NoteView *note : std::as_const(heading.notes)) {
        note->hide();
        note->deleteLater();
    }
    heading.notes.clear();
    for (const SettingsNote &note : section.notes) {
        auto *view = new NoteView(environment_.symbols, note, canvas_);
        connect(view, &NoteView::actionAsked, this,
                [this, bundleID = section.browser.bundleID](SettingsNote::Action action) {
                    Q_EMIT noteActionAsked(bundleID, action);
                });
        view->show();
        heading.notes.append(view);
    }
    heading.shownNotes = section.notes;
}

void ProfilesView::arrange()
{
    if (isArranging_)
        return;
    isArranging_ = true;
    // What is at the top stays there when something is added or taken away above it.
    const int scrolled = verticalScrollBar()->value();
    QString first;
    int offset = 0;
    for (const ProfileRow *row : std::as_const(rows_)) {
        if (row->y() <= scrolled && row->y() + row->height() > scrolled) {
            first = row->profileID();
            offset = scrolled - row->y();
        }
    }
    const SectionLayout former = std::exchange(layout_, measure());
    canvas_->resize(viewport()->width(), layout_.height() + (2 * margin));
    placeHeadings();
    const auto position = positionOf(first);
    if (former != layout_ && position)
        verticalScrollBar()->setValue(margin + layout_.rowTop(*position) + offset);
    isArranging_ = false;
    showRows();
}

SectionLayout ProfilesView::measure()
{
    const int width = viewport()->width() - (2 * margin);
    QList<SectionLayout::Section> sections;
    for (const BrowserSection &section : std::as_const(sections_)) {
        const Heading &heading = headings_[section.browser.bundleID];
        QList<int> noteHeights;
        for (const NoteView *note : heading.notes)
            noteHeights.append(std::max(note->heightForWidth(width), note->minimumSizeHint().height()));
        sections.append({heading.header->sizeHint().height(), noteHeights, section.profiles.size()});
    }
    const auto filled =
        std::ranges::find_if(sections_, [](const BrowserSection &section) { return !section.profiles.isEmpty(); });
    if (filled == sections_.end())
        return {sections, 0};
    const Profile &sample = filled->profiles.first();
    ProfileRow *row = rows_.value(sample.id());
    if (!row)
        row = makeRow(sample);
    return {sections, row->sizeHint().height()};
}

void ProfilesView::place(QWidget *part, int top, int height)
{
    part->setGeometry(margin, margin + top, viewport()->width() - (2 * margin), height);
}

void ProfilesView::placeHeadings()
{
    QList<ProfilesCanvas::Group> groups;
    for (qsizetype section = 0; section < sections_.size(); ++section) {
        const Heading &heading = headings_[sections_[section].browser.bundleID];
        place(heading.header, layout_.headerTop(section), heading.header->sizeHint().height());
        for (qsizetype index = 0; index < heading.notes.size(); ++index) {
            NoteView *note = heading.notes[index];
            const int width = viewport()->width() - (2 * margin);
            place(note, layout_.noteTop(section, index),
                  std::max(note->heightForWidth(width), note->minimumSizeHint().height()));
        }
        if (!sections_[section].profiles.isEmpty()) {
            groups.append({QRect(margin, margin + layout_.rowsTop(section), viewport()->width() - (2 * margin),
                                 layout_.rowsHeight(section)),
                           layout_.rowHeight()});
        }
    }
    canvas_->setGroups(groups);
}

void ProfilesView::showRows()
{
    const int beyond = rowsBeyond * layout_.rowHeight();
    const int top = verticalScrollBar()->value() - margin;
    QSet<QString> seen;
    bool isNew = false;
    for (const SectionLayout::Row &position : layout_.rowsBetween(top - beyond, top + viewport()->height() + beyond)) {
        const qsizetype before = rows_.size();
        ProfileRow *row = rowAt(position);
        isNew = isNew || rows_.size() > before || row->isHidden();
        place(row, layout_.rowTop(position), layout_.rowHeight());
        row->show();
        seen.insert(row->profileID());
    }
    dropOtherRows(seen);
    if (isNew)
        orderFocus();
}

ProfileRow *ProfilesView::rowAt(SectionLayout::Row row)
{
    const Profile &profile = sections_[row.section].profiles[row.index];
    ProfileRow *made = rows_.value(profile.id());
    return made ? made : makeRow(profile);
}

ProfileRow *ProfilesView::makeRow(const Profile &profile)
{
    auto *row = new ProfileRow(environment_.row, environment_.contentOf(profile), canvas_);
    const QString id = profile.id();
    connect(row, &ProfileRow::renamed, this, [this, profile](const QString &name) { Q_EMIT renamed(profile, name); });
    connect(row, &ProfileRow::hiddenToggled, this, [this, id](bool isHidden) { Q_EMIT hiddenToggled(id, isHidden); });
    connect(row, &ProfileRow::menuAsked, this, [this, id](const QPoint &place) { Q_EMIT menuAsked(id, place); });
    connect(row, &ProfileRow::commandAsked, this, [this, id] { Q_EMIT commandAsked(id); });
    connect(row, &ProfileRow::moveAsked, this,
            [this, id](ProfileMove::Direction direction) { Q_EMIT moveAsked(id, direction); });
    connect(row, &ProfileRow::dragMoved, this, [this, id](const QPoint &place) { drag(id, place); });
    connect(row, &ProfileRow::dragEnded, this, &ProfilesView::endDrag);
    rows_.insert(id, row);
    return row;
}

void ProfilesView::dropOtherRows(const QSet<QString> &seen)
{
    QList<ProfileRow *> others;
    for (ProfileRow *row : std::as_const(rows_)) {
        const auto position = positionOf(row->profileID());
        if (!seen.contains(row->profileID()) && !(position && row->isInUse()))
            others.append(row);
        else if (position)
            place(row, layout_.rowTop(*position), layout_.rowHeight());
    }
    drop(others);
}

void ProfilesView::drop(const QList<ProfileRow *> &rows)
{
    for (const ProfileRow *row : rows)
        rows_.remove(row->profileID());
    // A name that is handed on changes the list from within.
    for (ProfileRow *row : rows) {
        row->hide();
        row->deleteLater();
        row->commitName();
    }
}

void ProfilesView::orderFocus()
{
    QWidget *last = nullptr;
    const auto follow = [&last](QWidget *next) {
        if (!next)
            return;
        if (last)
            setTabOrder(last, next);
        last = next;
    };
    QList<ProfileRow *> rows = rows_.values();
    std::ranges::sort(rows, {}, &QWidget::y);
    auto row = rows.cbegin();
    for (const BrowserSection &section : std::as_const(sections_)) {
        const Heading &heading = headings_[section.browser.bundleID];
        for (; row != rows.cend() && (*row)->y() < heading.header->y(); ++row)
            std::ranges::for_each((*row)->controls(), follow);
        follow(heading.header->button());
        for (NoteView *note : heading.notes)
            follow(note->button());
    }
    for (; row != rows.cend(); ++row)
        std::ranges::for_each((*row)->controls(), follow);
}

void ProfilesView::rebuildRows()
{
    drop(rows_.values());
    arrange();
}

void ProfilesView::refreshShortcuts()
{
    for (ProfileRow *row : std::as_const(rows_))
        row->refreshShortcut();
}

void ProfilesView::commitNames()
{
    // Each may change the rows.
    const QList<ProfileRow *> rows = rows_.values();
    for (ProfileRow *row : rows)
        row->commitName();
}

ProfileRow *ProfilesView::showProfile(const QString &profileID)
{
    const auto position = positionOf(profileID);
    if (!position)
        return nullptr;
    ensureVisible(margin, margin + layout_.rowTop(*position) + (layout_.rowHeight() / 2), 0, layout_.rowHeight());
    showRows();
    return rows_.value(profileID);
}

bool ProfilesView::focusNextPrevChild(bool next)
{
    // The rows around the one with the focus are there only where they can be seen.
    if (QWidget *focus = QApplication::focusWidget(); focus && canvas_->isAncestorOf(focus)) {
        ensureWidgetVisible(focus);
        showRows();
    }
    return QScrollArea::focusNextPrevChild(next);
}

void ProfilesView::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    arrange();
}

void ProfilesView::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    arrange();
}

void ProfilesView::scrollContentsBy(int dx, int dy)
{
    QScrollArea::scrollContentsBy(dx, dy);
    if (!isArranging_)
        showRows();
}

void ProfilesView::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        arrange();
}

void ProfilesView::drag(const QString &profileID, const QPoint &place)
{
    const auto position = positionOf(profileID);
    if (!position)
        return;
    const int height = canvas_->mapFromGlobal(place).y() - margin;
    const int top = layout_.rowsTop(position->section);
    const qsizetype destination =
        dropDestination(height, top, layout_.rowHeight(), sections_[position->section].profiles.size());
    drag_ = Drag{profileID, place, *position, destination};
    constexpr int thickness = 2;
    canvas_->setDropLine(QRect(margin, margin + layout_.rowTop({position->section, destination}) - (thickness / 2),
                               viewport()->width() - (2 * margin), thickness));
    constexpr int milliseconds = 30;
    if (!scrolling_.isActive())
        scrolling_.start(milliseconds, this);
}

void ProfilesView::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != scrolling_.timerId() || !drag_) {
        QScrollArea::timerEvent(event);
        return;
    }
    // Near the edges, and beyond them, the list moves under the pointer.
    const int y = viewport()->mapFromGlobal(drag_->place).y();
    const int edge = layout_.rowHeight() / 2;
    const int beyond = y < edge ? y - edge : std::max(0, y - (viewport()->height() - edge));
    if (beyond == 0)
        return;
    verticalScrollBar()->setValue(verticalScrollBar()->value() + std::clamp(beyond, -edge, edge));
    drag(drag_->profileID, drag_->place);
}

void ProfilesView::endDrag(bool isDropped)
{
    scrolling_.stop();
    canvas_->setDropLine(std::nullopt);
    const auto ended = std::exchange(drag_, std::nullopt);
    const auto position = ended ? positionOf(ended->profileID) : std::nullopt;
    if (isDropped && position)
        Q_EMIT dropped({sections_[position->section].browser, position->index, ended->destination});
}

} // namespace vantrel
