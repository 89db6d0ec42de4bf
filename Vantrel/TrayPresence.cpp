#include "Vantrel/TrayPresence.h"

using namespace Qt::StringLiterals;

namespace vantrel {

TrayPresence::TrayPresence(Environment environment, std::chrono::milliseconds patience)
    : environment_(std::move(environment)),
      log_(environment_.log, u"Menu"_s)
{
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    connect(&patience_, &QTimer::timeout, this, &TrayPresence::settle);
}

void TrayPresence::start(StatusItem::Content content)
{
    patience_.start();
    if (environment_.statusItem) {
        environment_.statusItem->start(std::move(content), [this](bool isShown) { takePanel(isShown); });
    } else {
        showTrayIcon();
        tellPlaced();
    }
}

void TrayPresence::tellPlaced()
{
    if (const auto placed = std::exchange(environment_.placed, {}))
        placed();
}

void TrayPresence::takePanel(bool isShown)
{
    isInPanel_ = isShown;
    if (!isShown)
        showTrayIcon();
    else if (trayIcon_)
        trayIcon_->hide();
    tellPlaced();
}

void TrayPresence::showTrayIcon()
{
    if (!trayIcon_)
        trayIcon_ = environment_.makeTrayIcon();
    trayIcon_->show();
}

void TrayPresence::settle()
{
    tellPlaced();
    if (isInPanel_ || (trayIcon_ && trayIcon_->isAvailable()))
        return;
    log_.notice("This desktop has no place for the menu's symbol"_L1);
    environment_.tellHomeless();
}

} // namespace vantrel
