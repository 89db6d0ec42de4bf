#pragma once

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

class CountedPolicy final : public ActivationPolicy {
public:
    void becomeRegular() override { isRegular_ = true; }
    void becomeAccessory() override { isRegular_ = false; }
    void activate() override { ++activations_; }

    [[nodiscard]] bool isRegular() const { return isRegular_; }
    [[nodiscard]] int activations() const { return activations_; }

private:
    bool isRegular_ = false;
    int activations_ = 0;
};

/// A program whose every port is played, and what its settings window works with.
struct SettingsProgram {
    /// These are the browsers that there are from now on.
    void install(const QStringList &bundleIDs)
    {
        for (const QString &bundleID : bundleIDs)
            workspace_.install(bundleID, bundleID);
        store_.setBrowsers(installedBrowsers(workspace_, bundleIDs));
    }

    [[nodiscard]] SettingsWindow::Environment settings()
    {
        return {
            .model = model_,
            .windows = windows_,
            .profiles = {store_, discovery_, opener_, shortcuts_, hotkeys_, texts_, icons_, launchers_, data_,
                         symbols_},
            .general = {.store = store_,
                        .alert = alert_,
                        .conventions = conventions_,
                        .accessibility = hasSafari_ ? &accessibility_ : nullptr,
                        .loginItem = &loginItem_,
                        .updater = hasUpdater_ ? &updater_ : nullptr},
            .build = QStringLiteral("42"),
        };
    }

    FakeWorkspace workspace_;
    FakeBrowserData data_;
    FakeRunningApplications running_;
    FakeLog log_;
    FakeAlert alert_;
    FakeUserDefaults defaults_;
    FakeLoginItem loginItem_;
    FakeUpdater updater_;
    FakeAccessibilityTrust accessibility_;
    CountedPolicy policy_;
    bool hasSafari_ = false;
    bool hasUpdater_ = false;
    SystemConventions conventions_{.linkCommand = QStringLiteral("xdg-open")};
    DesktopKeyboard keyboard_{std::make_unique<FakeDesktopHotKeys>(), std::make_unique<FakeKeyboardLayout>()};
    FakeDesktopHotKeys &hotKeys_ = static_cast<FakeDesktopHotKeys &>(*keyboard_.hotKeys);
    KeyboardShortcuts shortcuts_{{defaults_, *keyboard_.hotKeys, *keyboard_.layout}};
    ProfileStore store_{QString(), log_, ProfileStore::Liveness::detached};
    DiscoveryRuns discovery_{store_, {workspace_, data_, running_}, ProfileReader()};
    ProfileOpener opener_{store_, {workspace_, alert_, log_}};
    ProfileHotkeys hotkeys_{store_, opener_, shortcuts_};
    ShortcutTexts texts_{shortcuts_, keyboard_, conventions_};
    ProfileIconCache icons_;
    ProfileLaunchers launchers_{{policy_, alert_, log_}};
    SymbolIcons symbols_{nullptr};
    SettingsModel model_;
    SettingsWindows windows_{policy_};
};

} // namespace vantrel::test
