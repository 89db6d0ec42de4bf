#include "Platform/AppIntents/ActionsBridge.h"
#include "Platform/AppIntents/AppEntityIndex.h"
#include "Platform/AppIntents/IntentActionService.h"
#include "Platform/DesktopPlatform.h"
#include "Platform/MacOS/MacAccessibilityTrust.h"
#include "Platform/MacOS/MacActivationPolicy.h"
#include "Platform/MacOS/MacApplicationInstance.h"
#include "Platform/MacOS/MacAutomationPermission.h"
#include "Platform/MacOS/MacRunningApplications.h"
#include "Platform/MacOS/MacSafariBridge.h"
#include "Platform/MacOS/MacSymbolImages.h"
#include "Platform/MacOS/MacUserDefaults.h"
#include "Platform/MacOS/NativeSavePanel.h"
#include "Platform/MacOS/PanelFolderAccess.h"
#include "Platform/MacOS/ServiceLoginItem.h"
#include "Platform/MacOS/UnifiedLog.h"
#include "Platform/MacOS/UpdaterFactory.h"
#include "Platform/ProgramScriptRunner.h"

using namespace Qt::StringLiterals;

namespace vantrel {

DesktopPlatform DesktopPlatform::create(Platform &)
{
    return {
        .log = std::make_unique<UnifiedLog>(),
        .profileService = nullptr,
        .searchIndex = std::make_unique<AppEntityIndex>(
            AppEntityIndex::Functions{.removeAll = vantrelRemoveIndexedProfiles, .add = vantrelIndexProfiles}),
        .actionService = std::make_unique<IntentActionService>(vantrelUpdateShortcutParameters),
        .instance = std::make_unique<MacApplicationInstance>(),
        .runningApplications = std::make_unique<MacRunningApplications>(),
        .activationPolicy = std::make_unique<MacActivationPolicy>(),
        .userDefaults = std::make_unique<MacUserDefaults>(),
        .loginItem = std::make_unique<ServiceLoginItem>(),
        .symbols = std::make_unique<MacSymbolImages>(),
        .appearance = nullptr,
        .statusItem = nullptr,
        .trayHost = TrayHost::menuBar,
        .savePanel = std::make_unique<NativeSavePanel>(),
        .folderAccess = std::make_unique<PanelFolderAccess>(),
        .updater = makeUpdater(),
        .conventions = {.linkCommand = u"open"_s, .showsKeySigns = true, .qtKeyNames = QtKeyNames::macintosh},
        .safari = SafariPorts{.scripts = std::make_unique<ProgramScriptRunner>(u"/usr/bin/osascript"_s),
                              .bridge = std::make_unique<MacSafariBridge>(),
                              .accessibility = std::make_unique<MacAccessibilityTrust>(),
                              .automation = std::make_unique<MacAutomationPermission>()},
    };
}

} // namespace vantrel
