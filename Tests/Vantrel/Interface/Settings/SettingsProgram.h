#pragma once

#include "Tests/Fakes/FakeActivationPolicy.h"
#include "Tests/Fakes/FakeAlert.h"
#include "Tests/Fakes/FakeBrowserData.h"
#include "Tests/Fakes/FakeDesktopHotKeys.h"
#include "Tests/Fakes/FakeKeyboardLayout.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeLoginItem.h"
#include "Tests/Fakes/FakePermissions.h"
#include "Tests/Fakes/FakeRunningApplications.h"
#include "Tests/Fakes/FakeUpdater.h"
#include "Tests/Fakes/FakeUserDefaults.h"
#include "Tests/Fakes/FakeWorkspace.h"
#include "Vantrel/InstalledBrowsers.h"
#include "Vantrel/Interface/Settings/SettingsWindow.h"

#include <memory>

namespace vantrel::test {

/// A program whose every port is played, and what its settings window works with.
struct SettingsProgram {
    /// These are the browsers that there are from now on.
    void install(const QStringList &bundleIDs)
    {
        for (const QString &bundleID : bundleIDs)
            workspace.install(bundleID, bundleID);
        store.setBrowsers(installedBrowsers(workspace, bundleIDs));
    }

    [[nodiscard]] SettingsWindow::Environment settings()
    {
        return {
            .model = model,
            .windows = windows,
            .profiles = {store, discovery, opener, shortcuts, hotkeys, texts, readKey, icons, launchers, data, symbols},
            .general = {.store = store,
                        .alert = alert,
                        .conventions = conventions,
                        .accessibility = hasSafari ? &accessibility : nullptr,
                        .loginItem = &loginItem,
                        .updater = hasUpdater ? &updater : nullptr},
            .build = QStringLiteral("42"),
        };
    }

    FakeWorkspace workspace;
    FakeBrowserData data;
    FakeRunningApplications running;
    FakeLog log;
    FakeAlert alert;
    FakeUserDefaults defaults;
    FakeLoginItem loginItem;
    FakeUpdater updater;
    FakeAccessibilityTrust accessibility;
    FakeActivationPolicy policy;
    bool hasSafari = false;
    bool hasUpdater = false;
    KeyEventReader readKey = keyEventByScanCode;
    SystemConventions conventions{.linkCommand = QStringLiteral("xdg-open")};
    DesktopKeyboard keyboard{std::make_unique<FakeDesktopHotKeys>(), std::make_unique<FakeKeyboardLayout>()};
    FakeDesktopHotKeys &hotKeys = static_cast<FakeDesktopHotKeys &>(*keyboard.hotKeys);
    KeyboardShortcuts shortcuts{{defaults, *keyboard.hotKeys, *keyboard.layout}};
    ProfileStore store{QString(), log, ProfileStore::Liveness::detached};
    DiscoveryRuns discovery{store, {workspace, data, running}, ProfileReader()};
    ProfileOpener opener{store, {workspace, alert, log}};
    ProfileHotkeys hotkeys{store, opener, shortcuts};
    ShortcutTexts texts{shortcuts, keyboard, conventions};
    ProfileIconCache icons;
    ProfileLaunchers launchers{{policy, alert, log}};
    SymbolIcons symbols{nullptr};
    SettingsModel model;
    SettingsWindows windows{policy};
};

} // namespace vantrel::test
