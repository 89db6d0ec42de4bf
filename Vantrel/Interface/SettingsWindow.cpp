#include "Vantrel/Interface/SettingsWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QVBoxLayout>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SettingsWindow)
};

} // namespace

SettingsWindow::SettingsWindow(SettingsWindows &windows) : windows_(windows), text_(new QLabel(this))
{
    //: Title of the settings window.
    setWindowTitle(Texts::tr("Vantrel Settings"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->addWidget(text_);
    text_->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    //: Text of the settings window.
    text_->setText(Texts::tr("Vantrel is running. Choose a profile in its menu to open it."));
}

void SettingsWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!std::exchange(isCounted_, true))
        windows_.windowAppeared();
}

void SettingsWindow::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    if (event->isAccepted() && std::exchange(isCounted_, false))
        windows_.windowDisappeared();
}

} // namespace vantrel
