#include "Platform/DesktopPlatform.h"
#include "Platform/Linux/AutostartEntry.h"
#include "Platform/Linux/Environment.h"
#include "Platform/Linux/Instance/ActivationMessage.h"
#include "Platform/Linux/Instance/InstanceSocketPath.h"
#include "Platform/Linux/Instance/LinuxApplicationInstance.h"
#include "Platform/Linux/LinuxActivationPolicy.h"
#include "Platform/Linux/LinuxUserDefaults.h"
#include "Platform/Linux/PortalAppearance.h"
#include "Platform/Linux/Processes/BrowserProcessesThread.h"
#include "Platform/Linux/Search/BusProfileService.h"
#include "Platform/Linux/StandardErrorLog.h"
#include "Platform/Linux/StatusItem/StatusNotifierItem.h"
#include "Platform/OwnPrograms.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Without an address the library would start a bus of its own, which nobody else talks to and which stays when Vantrel
/// ends.
QDBusConnection sessionBus(const QProcessEnvironment &variables)
{
    const QString runtimeFolder = variables.value(u"XDG_RUNTIME_DIR"_s);
    const bool hasBus = !variables.value(u"DBUS_SESSION_BUS_ADDRESS"_s).isEmpty() ||
                        (!runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + "/bus"_L1));
    return hasBus ? QDBusConnection::sessionBus() : QDBusConnection(QString());
}

} // namespace

DesktopPlatform DesktopPlatform::create(Platform &platform)
{
    const QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    const QDBusConnection bus = sessionBus(variables);
    auto log = std::make_unique<StandardErrorLog>(variables);
    LogSink &sink = *log;
    auto profileService = std::make_unique<BusProfileService>(bus, ActivationMessage::objectPath());
    auto instance = std::make_unique<LinuxApplicationInstance>(bus, instanceSocketPath(variables),
                                                               InstanceClient::defaultPatience, profileService.get());
    return {
        .log = std::move(log),
        .profileService = std::move(profileService),
        .searchIndex = nullptr,
        .actionService = nullptr,
        .instance = std::move(instance),
        .runningApplications =
            std::make_unique<BrowserProcessesThread>(*platform.browserData, bus, SingletonContext::current(), sink),
        .activationPolicy = std::make_unique<LinuxActivationPolicy>(),
        .userDefaults =
            std::make_unique<LinuxUserDefaults>(LinuxUserDefaults::defaultPath(Environment::from(variables))),
        .loginItem = std::make_unique<AutostartEntry>(AutostartEntry::Places::from(variables),
                                                      commandProgram(variables.value(u"PATH"_s))),
        .symbols = nullptr,
        .appearance = std::make_unique<PortalAppearance>(bus),
        .statusItem = std::make_unique<StatusNotifierItem>(bus, *platform.activation, Environment::from(variables)),
        .trayHost = TrayHost::plain,
        .savePanel = nullptr,
        .folderAccess = nullptr,
        .updater = nullptr,
        .conventions = {.linkCommand = u"xdg-open"_s, .showsKeySigns = false, .qtKeyNames = QtKeyNames::pc},
        .safari = std::nullopt,
    };
}

} // namespace vantrel
