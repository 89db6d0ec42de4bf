#include "Vantrel/Interface/Settings/SettingsGroup.h"

#include "Vantrel/Interface/Settings/GroupFrame.h"

#include <QLabel>
#include <QPainter>

namespace vantrel {
namespace {

constexpr int margin = 12;
constexpr int spacing = 6;

} // namespace

SettingsGroup::SettingsGroup(const QString &title, QWidget *parent)
    : QWidget(parent),
      frame_(new QWidget(this)),
      content_(new QVBoxLayout(frame_))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(spacing);
    if (!title.isEmpty()) {
        auto *heading = new QLabel(title, this);
        QFont font = heading->font();
        font.setBold(true);
        heading->setFont(font);
        layout->addWidget(heading);
    }
    layout->addWidget(frame_);
    content_->setContentsMargins(margin, margin, margin, margin);
}

QWidget *SettingsGroup::explanation(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

void SettingsGroup::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    drawGroupFrame(painter, frame_->geometry(), palette());
}

} // namespace vantrel
