#include "Vantrel/Interface/Settings/ProfilesSettings.h"

#include "Vantrel/Settings/ProfileLinks.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr int margin = 12;

QLabel *makeEmptyText(QWidget *parent)
{
    //: In the settings when no browser was found.
    auto *text =
        new QLabel(ProfilesSettings::tr("No browser Vantrel knows is installed. It works with Safari, Chrome, Edge, "
                                        "Brave, Vivaldi, Opera and other Chromium browsers, Firefox and Zen."),
                   parent);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignCenter);
    text->setContentsMargins(2 * margin, margin, 2 * margin, margin);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return text;
}

void copy(const QString &text)
{
    QGuiApplication::clipboard()->clear();
    QGuiApplication::clipboard()->setText(text);
}

} // namespace

ProfilesSettings::ProfilesSettings(const Environment &environment, QWidget *parent)
    : QWidget(parent),
      environment_(environment),
      pages_(new QStackedLayout(this)),
      empty_(makeEmptyText(this)),
      list_(new QWidget(this)),
      areShortcutsAvailable_(environment.shortcutTexts.areAvailable()),
      view_(makeView())
{
    auto *layout = new QVBoxLayout(list_);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(view_);
    pages_->addWidget(empty_);
    pages_->addWidget(list_);
    connectView();
    connect(&environment_.store, &ProfileStore::changed, this, &ProfilesSettings::showStore);
    updateKeyboardNote();
    showStore();
}

ProfilesView *ProfilesSettings::makeView()
{
    ProfileRow::Environment row{
        .symbols = environment_.symbols,
        .drawIcon = [this](const ProfileIcon &icon, int pixels) { return environment_.icons.image(icon, pixels); },
        .makeRecorder = [this](const QString &profileID, QWidget *owner) { return makeRecorder(profileID, owner); },
    };
    return new ProfilesView({
        .symbols = environment_.symbols,
        .row = std::move(row),
        .contentOf = [this](const Profile &profile) { return contentOf(profile); },
        .browserIcon = [this](const Browser &browser,
                              int pixels) { return environment_.launchers.browserIcon(browser.url, pixels); },
    });
}

void ProfilesSettings::connectView()
{
    connect(view_, &ProfilesView::searchAsked, &environment_.discovery, &DiscoveryRuns::searchSafari);
    connect(view_, &ProfilesView::noteActionAsked, this, &ProfilesSettings::act);
    connect(view_, &ProfilesView::renamed, this, [this](const Profile &named, const QString &name) {
        // One that has gone keeps the name for when it returns.
        const Profile *present = profile(named.id());
        environment_.store.rename(present ? Profile(*present) : named, name);
    });
    connect(view_, &ProfilesView::hiddenToggled, this, [this](const QString &id, bool isHidden) {
        if (const Profile *toggled = profile(id))
            environment_.store.setHidden(isHidden, Profile(*toggled));
    });
    connect(view_, &ProfilesView::menuAsked, this, &ProfilesSettings::showMenu);
    connect(view_, &ProfilesView::commandAsked, this, [](const QString &id) { copy(openCommand(id)); });
    connect(view_, &ProfilesView::moveAsked, this, &ProfilesSettings::move);
    connect(view_, &ProfilesView::dropped, this,
            [this](const ProfileMove &dropped) { dropped.apply(environment_.store); });
}

void ProfilesSettings::showStore()
{
    const BrowserSection::Facts facts{
        .canRequestAccess = [this](const QString &id) { return environment_.discovery.canRequestAccess(id); },
        .dataFolders =
            [this](const QString &id) {
                QStringList paths;
                for (const BrowserDataFolder &folder : environment_.browserData.dataFolders(id))
                    paths.append(folder.path);
                return paths;
            },
    };
    view_->setSections(BrowserSection::all(environment_.store, facts));
    pages_->setCurrentWidget(environment_.store.browsers().isEmpty() ? empty_ : list_);
}

void ProfilesSettings::takeKeyboardChange()
{
    updateKeyboardNote();
    if (std::exchange(areShortcutsAvailable_, environment_.shortcutTexts.areAvailable()) != areShortcutsAvailable_)
        view_->rebuildRows();
    else
        view_->refreshShortcuts();
}

void ProfilesSettings::updateKeyboardNote()
{
    const auto note = environment_.shortcutTexts.note();
    if (note == std::exchange(shownKeyboardNote_, note))
        return;
    delete keyboardNote_;
    if (!note)
        return;
    keyboardNote_ = new NoteView(environment_.symbols, *note, list_);
    keyboardNote_->setContentsMargins(margin, margin, margin, 0);
    static_cast<QVBoxLayout *>(list_->layout())->insertWidget(0, keyboardNote_);
}

const Profile *ProfilesSettings::profile(const QString &profileID) const
{
    const QList<Profile> &profiles = environment_.store.profiles();
    const auto found = std::ranges::find(profiles, profileID, &Profile::id);
    return found == profiles.end() ? nullptr : &*found;
}

ProfileRow::Content ProfilesSettings::contentOf(const Profile &profile) const
{
    const QString displayName = environment_.store.displayName(profile);
    return {.id = profile.id(),
            .displayName = displayName,
            .ownName = ProfileCatalogue::defaultName(profile),
            .title = environment_.store.catalogue().title(profile),
            .isHidden = environment_.store.catalogue().isHidden(profile),
            .icon = ProfileIcon::of(profile, displayName)};
}

ShortcutRecorder *ProfilesSettings::makeRecorder(const QString &profileID, QWidget *parent)
{
    const Profile *owner = profile(profileID);
    if (!owner || !environment_.shortcutTexts.areAvailable())
        return nullptr;
    return new ShortcutRecorder(
        ProfileHotkeys::shortcutName(*owner),
        {
            .shortcuts = environment_.shortcuts,
            .allNames = [this] { return environment_.hotkeys.profileShortcutNames(); },
            .text = [this](const Shortcut &shortcut) { return environment_.shortcutTexts.text(shortcut); },
            .beep = [] { QApplication::beep(); },
            .readKey = environment_.readKey,
        },
        parent);
}

void ProfilesSettings::act(const QString &bundleID, SettingsNote::Action action)
{
    switch (action) {
    case SettingsNote::Action::none: return;
    case SettingsNote::Action::grantAccess: environment_.discovery.requestAccess(bundleID); return;
    case SettingsNote::Action::tryAgain: environment_.discovery.discoverBrowser(bundleID); return;
    }
}

void ProfilesSettings::move(const QString &profileID, ProfileMove::Direction direction)
{
    if (const auto found = ProfileMove::byOne(environment_.store, profileID, direction))
        found->apply(environment_.store);
    view_->showProfile(profileID);
}

void ProfilesSettings::showMenu(const QString &profileID, const QPoint &place)
{
    const Profile *found = profile(profileID);
    if (!found)
        return;
    menu_.clear();
    // The list may be another one when the user has chosen.
    const Profile chosen = *found;
    //: In a profile's menu.
    menu_.addAction(tr("Open"), [this, chosen] { environment_.opener.open(chosen, {}, ProfileOpener::Source::menu); });
    //: In a profile's menu.
    menu_.addAction(tr("Create Launcher App…"),
                    [this, chosen] { environment_.launchers.make(chosen, environment_.store.catalogue()); });
    //: In a profile's menu.
    menu_.addAction(tr("Copy Link"), [chosen] { copy(linkToCopy(chosen)); });
    menu_.addSeparator();
    const auto addMove = [&](const QString &title, ProfileMove::Direction direction, Qt::Key key) {
        QAction *action = menu_.addAction(title, [this, profileID, direction] { move(profileID, direction); });
        action->setShortcut(Qt::ALT | key);
        action->setEnabled(ProfileMove::byOne(environment_.store, profileID, direction).has_value());
    };
    //: In a profile's menu: one place in the list of its browser's profiles.
    addMove(tr("Move Up"), ProfileMove::Direction::up, Qt::Key_Up);
    //: In a profile's menu: one place in the list of its browser's profiles.
    addMove(tr("Move Down"), ProfileMove::Direction::down, Qt::Key_Down);
    // Below its button, towards the middle of the window.
    menu_.popup(isRightToLeft() ? place - QPoint(menu_.sizeHint().width(), 0) : place);
}

} // namespace vantrel
