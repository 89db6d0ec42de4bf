#pragma once

#include "Platform/ActionService.h"
#include "Platform/ActivationPolicy.h"
#include "Platform/Appearance.h"
#include "Platform/ApplicationInstance.h"
#include "Platform/FolderAccess.h"
#include "Platform/LogSink.h"
#include "Platform/LoginItem.h"
#include "Platform/Platform.h"
#include "Platform/ProfileService.h"
#include "Platform/RunningApplications.h"
#include "Platform/SafariPorts.h"
#include "Platform/SavePanel.h"
#include "Platform/SearchIndex.h"
#include "Platform/StatusItem.h"
#include "Platform/SymbolImages.h"
#include "Platform/SystemConventions.h"
#include "Platform/TrayHost.h"
#include "Platform/Updater.h"
#include "Platform/UserDefaults.h"

#include <memory>
#include <optional>

namespace vantrel {

/// The ports that only the app needs, beyond those of the command line.
struct DesktopPlatform {
    std::unique_ptr<LogSink> log;
    /// Null where other programs don't ask us, but find profiles in the system's index.
    std::unique_ptr<ProfileService> profileService;
    /// Null where searches ask us.
    std::unique_ptr<SearchIndex> searchIndex;
    /// Null where the system has no actions of programs.
    std::unique_ptr<ActionService> actionService;
    std::unique_ptr<ApplicationInstance> instance;
    std::unique_ptr<RunningApplications> runningApplications;
    std::unique_ptr<ActivationPolicy> activationPolicy;
    std::unique_ptr<UserDefaults> userDefaults;
    /// Null where the program can't be started with the session.
    std::unique_ptr<LoginItem> loginItem;
    /// Null where the program's own drawings are shown.
    std::unique_ptr<SymbolImages> symbols;
    /// Null where the toolkit follows the system by itself.
    std::unique_ptr<Appearance> appearance;
    /// Null where no panel draws menus.
    std::unique_ptr<StatusItem> statusItem;
    /// Where the symbol is shown when there is no such panel.
    TrayHost trayHost = TrayHost::plain;
    /// Null where the toolkit's panel is shown.
    std::unique_ptr<SavePanel> savePanel;
    /// Null where the system grants access to folders in no such way.
    std::unique_ptr<FolderAccess> folderAccess;
    /// Null where the system itself keeps programs up to date.
    std::unique_ptr<Updater> updater;
    SystemConventions conventions;
    /// None where there is no Safari.
    std::optional<SafariPorts> safari;

    /// Refers to `platform`, which must outlive it. Needs a QGuiApplication.
    [[nodiscard]] static DesktopPlatform create(Platform &platform);
};

} // namespace vantrel
