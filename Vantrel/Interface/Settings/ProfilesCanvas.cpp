#include "Vantrel/Interface/Settings/ProfilesCanvas.h"

#include "Vantrel/Interface/Settings/GroupFrame.h"

#include <QPaintEvent>

namespace vantrel {
ProfilesCanvas::ProfilesCanvas(QWidget *parent) : QWidget(parent), dropLine_(new QWidget(this))
{
    dropLine_->setAttribute(Qt::WA_TransparentForMouseEvents);
    dropLine_->setBackgroundRole(QPalette::Highlight);
    dropLine_->setAutoFillBackground(true);
    dropLine_->hide();
}

void ProfilesCanvas::setGroups(const QList<Group> &groups)
{
    if (groups == groups_)
        return;
    groups_ = groups;
    update();
}

void ProfilesCanvas::setDropLine(std::optional<QRect> line)
{
    dropLine_->setVisible(line.has_value());
    if (!line)
        return;
    dropLine_->setGeometry(*line);
    dropLine_->raise();
}

void ProfilesCanvas::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const QColor line = groupLineColor(palette());
    for (const Group &group : groups_) {
        if (!group.frame.intersects(event->rect()))
            continue;
        drawGroupFrame(painter, group.frame, palette());
        for (int top = group.frame.top() + group.rowHeight; top < group.frame.bottom(); top += group.rowHeight) {
            if (top >= event->rect().top() - 1 && top <= event->rect().bottom() + 1)
                painter.fillRect(group.frame.left() + 1, top, group.frame.width() - 2, 1, line);
        }
    }
}

} // namespace vantrel
