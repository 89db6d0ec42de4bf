#include "Vantrel/Interface/Settings/NoteView.h"

#include "Vantrel/Interface/Settings/PictureView.h"

#include <QGridLayout>
#include <QLabel>

namespace vantrel {

NoteView::NoteView(const SymbolIcons &icons, const SettingsNote &note, QWidget *parent) : QWidget(parent)
{
    auto *symbol = new PictureView(1, {}, this);
    symbol->setDrawing([&icons, symbol, name = note.symbol](int pixels) {
        return icons.image(name, pixels, symbol->palette().color(QPalette::WindowText));
    });
    auto *text = new QLabel(note.text, this);
    // Names and reasons come from browsers and the system: they are not to be read as markup.
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(symbol, 0, 0, Qt::AlignTop);
    layout->addWidget(text, 0, 1);
    layout->setColumnStretch(1, 1);
    if (note.action == SettingsNote::Action::none)
        return;
    button_ = new QPushButton(actionTitle(note.action), this);
    button_->setAutoDefault(false);
    button_->setAccessibleDescription(note.text);
    connect(button_, &QPushButton::clicked, this, [this, action = note.action] { Q_EMIT actionAsked(action); });
    layout->addWidget(button_, 1, 1, Qt::AlignLeading);
}

} // namespace vantrel
