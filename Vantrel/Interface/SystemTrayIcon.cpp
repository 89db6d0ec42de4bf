#include "Vantrel/Interface/SystemTrayIcon.h"

#include "Vantrel/Interface/MenuIconEngine.h"
#include "Vantrel/Pictures/TrayImage.h"

#include <QCursor>

using namespace Qt::StringLiterals;

namespace vantrel {

namespace {

QIcon iconFor(TrayHost host)
{
    // An outline is there to be seen on either colour; where only the shape counts, it would be part of it.
    const TrayColor color = host == TrayHost::menuBar ? TrayColor::dark : TrayColor::unknown;
    QIcon icon(new MenuIconEngine([color](int pixels) { return trayImage(pixels, color); }));
    icon.setIsMask(host == TrayHost::menuBar);
    return icon;
}

} // namespace

SystemTrayIcon::SystemTrayIcon(PopupMenu &menu, TrayHost host) : menu_(menu)
{
    icon_.setIcon(iconFor(host));
    icon_.setToolTip(u"Vantrel"_s);
    icon_.setContextMenu(&menu);
    // It is told of clicks there too, after which the menu is open already.
    if (host == TrayHost::menuBar)
        return;
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                     [this](QSystemTrayIcon::ActivationReason reason) { activate(reason); });
}

void SystemTrayIcon::activate(QSystemTrayIcon::ActivationReason reason)
{
    // The other button opens the menu by itself.
    if (reason != QSystemTrayIcon::Trigger)
        return;
    const QRect symbol = icon_.geometry();
    if (symbol.isValid())
        menu_.popupBeside(symbol);
    else
        menu_.popup(QCursor::pos());
}

} // namespace vantrel
