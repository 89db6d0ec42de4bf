#include "Vantrel/Interface/SystemTrayIcon.h"

#include "Vantrel/Interface/MenuIconEngine.h"
#include "Vantrel/Pictures/TrayImage.h"

#include <QCursor>

using namespace Qt::StringLiterals;

namespace vantrel {

SystemTrayIcon::SystemTrayIcon(PopupMenu &menu) : menu_(menu)
{
    icon_.setIcon(QIcon(new MenuIconEngine([](int pixels) { return trayImage(pixels, TrayColor::unknown); })));
    icon_.setToolTip(u"Vantrel"_s);
    icon_.setContextMenu(&menu);
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
