#include "Vantrel/Interface/Settings/BrowserHeader.h"

#include "Vantrel/Interface/Settings/LeadingAlignment.h"
#include "Vantrel/Interface/Settings/PictureView.h"

#include <QHBoxLayout>

namespace vantrel {
namespace {

constexpr double iconSide = 1.4;

} // namespace

BrowserHeader::BrowserHeader(const BrowserSection &section, Icon icon, QWidget *parent)
    : QWidget(parent),
      name_(new QLabel(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(new PictureView(iconSide, std::move(icon), this));
    layout->addWidget(name_, 1);
    name_->setTextFormat(Qt::PlainText);
    // Beside the icon, whatever script the name is in.
    name_->setAlignment(leading(*this) | Qt::AlignVCenter);
    QFont font = name_->font();
    font.setBold(true);
    name_->setFont(font);
    if (section.search) {
        button_ = new QPushButton(this);
        button_->setAutoDefault(false);
        connect(button_, &QPushButton::clicked, this, &BrowserHeader::searchAsked);
        layout->addWidget(button_);
    }
    setSection(section);
}

void BrowserHeader::setSection(const BrowserSection &section)
{
    name_->setText(section.browser.name);
    if (!button_ || !section.search)
        return;
    button_->setText(section.search->title);
    button_->setEnabled(section.search->isPossible);
}

} // namespace vantrel
