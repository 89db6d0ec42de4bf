#pragma once

#include "Platform/DesktopPlatform.h"
#include "Vantrel/Actions/ActionRequests.h"
#include "Vantrel/Actions/ProfileRequests.h"
#include "Vantrel/Actions/ProfileSearchIndex.h"
#include "Vantrel/DiscoveryRuns.h"
#include "Vantrel/Interface/AlertBox.h"
#include "Vantrel/Interface/GlobalShortcuts.h"
#include "Vantrel/Interface/PopupMenu.h"
#include "Vantrel/Interface/ProfileLaunchers.h"
#include "Vantrel/Interface/Settings/SettingsWindow.h"
#include "Vantrel/LinkQueue.h"
#include "Vantrel/Pictures/ProfileIconCache.h"
#include "Vantrel/ProfileOpener.h"
#include "Vantrel/ProfileStore.h"
#include "Vantrel/Safari/Automation.h"
#include "Vantrel/SettingsModel.h"
#include "Vantrel/TimerClock.h"
#include "Vantrel/TrayPresence.h"

#include <memory>
#include <optional>

namespace vantrel {

/// The running app: all its parts, each given what it needs. Main thread only.
class VantrelApp final : public QObject {
public:
    /// The ports must outlive it. `build` is the number of this build of the version.
    VantrelApp(Platform &platform, DesktopPlatform &desktop, QString build);
    ~VantrelApp() override;
    Q_DISABLE_COPY_MOVE(VantrelApp)

    /// Becomes the one instance and does what is asked, or hands it to the one there is.
    [[nodiscard]] std::expected<ApplicationInstance::Role, PlatformError> start(const InstanceRequest &first);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void offerProfiles();
    void take(const InstanceRequest &request);
    void act(const QString &action);
    void showMenu();
    void showSettings(SettingsModel::Tab tab);
    [[nodiscard]] SettingsWindow *makeSettingsWindow();
    void startSoon();
    [[nodiscard]] Menu menu();
    [[nodiscard]] ProfileIcon iconOf(const Profile &profile) const;
    [[nodiscard]] StatusItem::Content statusItemContent();
    void takeStoreChange();
    void prepareIcons();
    void prepareMenu();
    [[nodiscard]] GlobalShortcuts &shortcuts();
    void connectShortcuts(GlobalShortcuts &made);
    void updateMenus();

    Platform &platform_;
    DesktopPlatform &desktop_;
    QString build_;
    ProfileStore store_;
    TimerClock clock_;
    Safari::Languages safariLanguages_;
    /// None where there is no Safari.
    std::optional<Safari::Automation> safari_;
    DiscoveryRuns discovery_;
    AlertBox alert_;
    ProfileOpener opener_;
    LinkQueue links_;
    /// Made when the symbol is there, or when somebody asks for them before.
    std::optional<GlobalShortcuts> shortcuts_;
    ProfileIconCache icons_;
    ProfileRequests requests_;
    /// None where other programs ask us.
    std::optional<ProfileSearchIndex> searchIndex_;
    /// None where the system has no actions of programs.
    std::optional<ActionRequests> actions_;
    ProfileLaunchers launchers_;
    SymbolIcons symbols_;
    SettingsModel settingsModel_;
    SettingsWindows settingsWindows_;
    /// Gone with its window: it holds a good part of what the program takes in memory.
    QPointer<SettingsWindow> settingsWindow_;
    PopupMenu popup_;
    TrayPresence tray_;
};

} // namespace vantrel
