#include "Vantrel/Interface/Settings/SettingsGroup.h"

#include "Vantrel/Interface/Settings/GroupFrame.h"

#include <QLabel>
#include <QPainter>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

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
    QString marked = text.toHtmlEscaped();
    static const QRegularExpression code(u"`([^`]*)`"_s);
    // Isolated, it reads from left to right in every language.
    marked.replace(code, u"<tt>\u2066\\1\u2069</tt>"_s);
    auto *label = new QLabel(marked);
    label->setTextFormat(Qt::RichText);
    label->setWordWrap(true);
    return label;
}

void SettingsGroup::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    drawGroupFrame(painter, frame_->geometry(), palette());
}

} // namespace vantrel
