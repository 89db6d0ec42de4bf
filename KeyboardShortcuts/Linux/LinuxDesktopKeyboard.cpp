#include "KeyboardShortcuts/DesktopKeyboard.h"
#include "KeyboardShortcuts/Linux/DefaultKeyboardLayout.h"
#include "KeyboardShortcuts/Linux/NoHotKeys.h"
#include "KeyboardShortcuts/Portal/PortalHotKeys.h"
#include "KeyboardShortcuts/X11/X11HotKeys.h"
#include "KeyboardShortcuts/X11/XkbKeyboardLayout.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A connection that nobody else uses: the portal takes whoever has asked it before for a program without a name.
QDBusConnection ownConnection()
{
    // Without an address the library would start a bus of its own, which stays when Vantrel ends.
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const bool hasBus = !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
                        (!runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + "/bus"_L1));
    return hasBus ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"vantrel hotkeys"_s)
                  : QDBusConnection(QString());
}

std::unique_ptr<DesktopHotKeys> makeHotKeys(ActivationSource &source, HotKeyDescription description)
{
    if (auto keys = X11HotKeys::create(source))
        return keys;
    const QDBusConnection connection = ownConnection();
    if (!connection.isConnected())
        return std::make_unique<NoHotKeys>();
    auto keys = std::make_unique<PortalHotKeys>(connection, source, std::move(description));
    keys->start();
    return keys;
}

std::unique_ptr<KeyboardLayout> makeLayout()
{
    if (auto layout = XkbKeyboardLayout::create())
        return layout;
    return std::make_unique<DefaultKeyboardLayout>();
}

} // namespace

DesktopKeyboard DesktopKeyboard::create(ActivationSource &source, HotKeyDescription description)
{
    return {.hotKeys = makeHotKeys(source, std::move(description)),
            .layout = makeLayout(),
            .keyNumber = KeyNumber::scanCode};
}

} // namespace vantrel
