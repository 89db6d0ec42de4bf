#include "Vantrel/Interface/VantrelApp.h"

#include "Platform/ProcessMemory.h"
#include "Vantrel/Interface/DarkPalette.h"
#include "Vantrel/Interface/NoTrayNotice.h"
#include "Vantrel/Interface/SystemTrayIcon.h"
#include "Vantrel/Pictures/TrayImage.h"
#include "Vantrel/ProfileMenu.h"
#include "Vantrel/SavedState.h"
#include "VantrelKit/AvatarThumbnail.h"
#include "VantrelKit/Safari/SafariMenus.h"

#include <QCursor>
#include <QGuiApplication>
#include <QInputEvent>
#include <QStandardPaths>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

ProfileReader profileReader()
{
    ProfileReader reader;
    reader.appSupportRoot =
        QStandardPaths::writableLocation(QStandardPaths::HomeLocation) + "/Library/Application Support"_L1;
    reader.readPicture = avatarThumbnailPNG;
    return reader;
}

std::optional<Safari::Automation> safariAutomation(DesktopPlatform &desktop, Safari::Languages &languages, Clock &clock)
{
    if (!desktop.safari)
        return std::nullopt;
    return std::optional<Safari::Automation>(
        std::in_place,
        Safari::Automation::Environment{*desktop.safari, *desktop.runningApplications, languages, clock, *desktop.log});
}

} // namespace

VantrelApp::VantrelApp(Platform &platform, DesktopPlatform &desktop, QString build)
    : platform_(platform),
      desktop_(desktop),
      build_(std::move(build)),
      store_(SavedState::defaultPath(), *desktop.log),
      safariLanguages_(SafariMenus::appResources(), SafariMenus::frameworkResources()),
      safari_(safariAutomation(desktop, safariLanguages_, clock_)),
      discovery_(store_,
                 {*platform.workspace, *platform.browserData, *desktop.runningApplications, desktop.folderAccess.get(),
                  safari_ ? &safari_->search() : nullptr},
                 profileReader()),
      alert_(*desktop.activationPolicy),
      opener_(store_, {*platform.workspace, alert_, *desktop.log, safari_ ? &safari_->windows() : nullptr}),
      links_(store_, discovery_, opener_),
      requests_({store_, discovery_, opener_, icons_, *platform.activation,
                 [this] { showSettings(SettingsModel::Tab::profiles); }}),
      launchers_({*desktop.activationPolicy, alert_, *desktop.log, desktop.savePanel.get()}),
      symbols_(desktop.symbols.get()),
      settingsWindows_(*desktop.activationPolicy),
      popup_([this] { return menu(); }, desktop.trayHost),
      tray_({desktop.statusItem.get(), [this] { return std::make_unique<SystemTrayIcon>(popup_, desktop_.trayHost); },
             *desktop.log, [this] { NoTrayNotice(*desktop_.userDefaults, *desktop_.activationPolicy).showOnce(); },
             [this] { startSoon(); }})
{
    connect(&store_, &ProfileStore::changed, this, &VantrelApp::takeStoreChange);
    offerProfiles();
    connect(&icons_, &ProfileIconCache::prepared, this, &VantrelApp::prepareMenu);
}

/// To the rest of the system.
void VantrelApp::offerProfiles()
{
    ProfileTitles &titles = requests_.titles();
    if (desktop_.profileService) {
        desktop_.profileService->start(requests_);
        connect(&titles, &ProfileTitles::changed, this, [this] { desktop_.profileService->announceChange(); });
    }
    if (desktop_.searchIndex)
        searchIndex_.emplace(
            ProfileSearchIndex::Environment{titles, icons_, *desktop_.searchIndex, clock_, *desktop_.log});
    if (desktop_.actionService) {
        actions_.emplace(ActionRequests::Environment{store_, discovery_, opener_, titles, icons_});
        desktop_.actionService->start(*actions_);
        connect(&titles, &ProfileTitles::changed, this, [this] { desktop_.actionService->announceChange(); });
    }
}

VantrelApp::~VantrelApp()
{
    delete settingsWindow_;
}

std::expected<ApplicationInstance::Role, PlatformError> VantrelApp::start(const InstanceRequest &first)
{
    const auto role = desktop_.instance->start(first, [this](const InstanceRequest &request) { take(request); });
    if (!role || *role == ApplicationInstance::Role::second)
        return role;
    desktop_.activationPolicy->becomeAccessory();
    tray_.start(statusItemContent());
    // A plain start shows the symbol and nothing else.
    if (first.kind != InstanceRequest::Kind::activate)
        take(first);
    return role;
}

void VantrelApp::take(const InstanceRequest &request)
{
    platform_.activation->noteToken(request.activationToken);
    platform_.activation->noteStartupID(request.startupID);
    discovery_.start();
    std::ignore = shortcuts();
    switch (request.kind) {
    case InstanceRequest::Kind::activate: showSettings(settingsModel_.tab()); return;
    case InstanceRequest::Kind::open: {
        QList<QUrl> links;
        for (const QString &link : request.links)
            links.append(QUrl(link));
        links_.open(links);
        return;
    }
    case InstanceRequest::Kind::action: act(request.action); return;
    }
}

void VantrelApp::act(const QString &action)
{
    if (action == "menu"_L1)
        showMenu();
    else if (action == "settings"_L1)
        showSettings(SettingsModel::Tab::profiles);
    else if (action == "quit"_L1)
        QCoreApplication::quit();
}

void VantrelApp::showMenu()
{
    // At the very first start there is nothing to show yet, and rows that come a moment later would move under the
    // pointer.
    if (store_.profiles().isEmpty() && !discovery_.isIdle()) {
        connect(&discovery_, &DiscoveryRuns::idle, this, &VantrelApp::showMenu, Qt::SingleShotConnection);
        return;
    }
    popup_.popupInFront(QCursor::pos(), *desktop_.activationPolicy);
}

void VantrelApp::showSettings(SettingsModel::Tab tab)
{
    settingsModel_.setTab(tab);
    if (!settingsWindow_)
        settingsWindow_ = makeSettingsWindow();
    settingsWindow_->show();
    settingsWindow_->raise();
    settingsWindow_->activateWindow();
    desktop_.activationPolicy->activate();
}

SettingsWindow *VantrelApp::makeSettingsWindow()
{
    const ProfilesSettings::Environment profiles{
        .store = store_,
        .discovery = discovery_,
        .opener = opener_,
        .shortcuts = shortcuts().shortcuts(),
        .hotkeys = shortcuts().hotkeys(),
        .shortcutTexts = shortcuts().texts(),
        .readKey = shortcuts().keyReader(),
        .icons = icons_,
        .launchers = launchers_,
        .browserData = *platform_.browserData,
        .symbols = symbols_,
    };
    const GeneralSettings::Environment general{
        .store = store_,
        .alert = alert_,
        .conventions = desktop_.conventions,
        .accessibility = desktop_.safari ? desktop_.safari->accessibility.get() : nullptr,
        .loginItem = desktop_.loginItem.get(),
        .updater = desktop_.updater.get(),
    };
    auto *window = new SettingsWindow({settingsModel_, settingsWindows_, profiles, general, build_});
    window->setAttribute(Qt::WA_DeleteOnClose);
    // Drawing it has left much free memory behind.
    connect(window, &QObject::destroyed, this, [] { ProcessMemory::giveBack(); });
    return window;
}

void VantrelApp::startSoon()
{
    // Reading profiles and asking for the keyboard take the main thread and the processors: the symbol is drawn first.
    constexpr std::chrono::milliseconds timeToDraw{20};
    QTimer::singleShot(timeToDraw, this, [this] {
        discovery_.start();
        std::ignore = shortcuts();
        if (desktop_.appearance)
            desktop_.appearance->observe(setDark);
    });
}

Menu VantrelApp::menu()
{
    // Somebody was faster.
    discovery_.start();
    const ProfileMenuActions actions{
        .open = [this](const Profile &profile) { opener_.open(profile, {}, ProfileOpener::Source::menu); },
        .findProfiles = [this] { showSettings(SettingsModel::Tab::profiles); },
        .showSettings = [this] { showSettings(SettingsModel::Tab::profiles); },
        .quit = [] { QCoreApplication::quit(); },
        .icon = [this](const Profile &profile, int pixels) { return icons_.image(iconOf(profile), pixels); },
        .iconPNG = [this](const Profile &profile, int pixels) { return icons_.png(iconOf(profile), pixels); },
        .shortcut = [this](const Profile &profile) { return shortcuts().keyEquivalentOf(profile); },
    };
    return profileMenu(store_, actions);
}

StatusItem::Content VantrelApp::statusItemContent()
{
    return {
        .title = u"Vantrel"_s,
        .iconName = u"app.kestrune.Vantrel-symbolic"_s,
        .icon = [](int pixels) { return trayImage(pixels, TrayColor::unknown); },
        .menu = [this] { return menu(); },
    };
}

void VantrelApp::takeStoreChange()
{
    QSet<QString> ids;
    for (const Profile &profile : store_.profiles())
        ids.insert(profile.id());
    icons_.keepOnly(ids);
    prepareIcons();
    popup_.updateRows();
}

void VantrelApp::prepareIcons()
{
    QList<ProfileIcon> icons;
    for (const ProfileStore::MenuSection &section : store_.menuSections()) {
        for (const Profile &profile : section.profiles)
            icons.append(iconOf(profile));
    }
    icons_.prepare(icons, tray_.isInPanel() ? ProfileIconCache::Sizes{.png = StatusItem::menuIconPixels}
                                            : ProfileIconCache::Sizes{.image = popup_.iconPixels()});
}

void VantrelApp::prepareMenu()
{
    // A panel asks for all icons at once, and for the rows whenever it has been told of others.
    if (desktop_.statusItem)
        desktop_.statusItem->updateMenu();
    // Starting, reading and drawing leave much free memory behind, and code that was used for the last time.
    ProcessMemory::giveBack();
    if (!tray_.isInPanel())
        popup_.prepare();
}

GlobalShortcuts &VantrelApp::shortcuts()
{
    if (shortcuts_)
        return *shortcuts_;
    GlobalShortcuts &made = shortcuts_.emplace(GlobalShortcuts::Environment{
        *platform_.activation, *desktop_.userDefaults, store_, opener_, desktop_.conventions});
    connectShortcuts(made);
    return made;
}

void VantrelApp::connectShortcuts(GlobalShortcuts &made)
{
    // A menu has the keyboard to itself. That of a panel is another program's, and can't be helped.
    connect(&popup_, &QMenu::aboutToShow, &made, [&made] { made.shortcuts().setMenuOpen(true); });
    connect(&popup_, &QMenu::aboutToHide, &made, [&made] { made.shortcuts().setMenuOpen(false); });
    connect(&made, &GlobalShortcuts::keyEquivalentsChanged, this, &VantrelApp::updateMenus);
    connect(&made, &GlobalShortcuts::keyboardChanged, this, [this] {
        if (settingsWindow_)
            settingsWindow_->takeKeyboardChange();
    });
}

void VantrelApp::updateMenus()
{
    popup_.updateRows();
    if (desktop_.statusItem)
        desktop_.statusItem->updateMenu();
}

ProfileIcon VantrelApp::iconOf(const Profile &profile) const
{
    return ProfileIcon::of(profile, store_.displayName(profile));
}

bool VantrelApp::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
        // Under X11 the time is the server's, which is what startup notifications are about.
        platform_.activation->noteTime(static_cast<std::uint32_t>(static_cast<QInputEvent *>(event)->timestamp()));
        break;
    default: break;
    }
    return QObject::eventFilter(object, event);
}

} // namespace vantrel
