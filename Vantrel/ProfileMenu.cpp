#include "Vantrel/ProfileMenu.h"

#include <QCoreApplication>

#include <memory>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Kind = MenuItem::Kind;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ProfileMenu)
};

MenuItem separator()
{
    return {.kind = Kind::separator};
}

MenuItem command(const QString &id, const QString &title, const std::function<void()> &action,
                 const QKeySequence &shortcut = {})
{
    return {.title = title, .id = id, .shortcut = shortcut, .action = action};
}

using SharedActions = std::shared_ptr<const ProfileMenuActions>;

MenuItem profileRow(const Profile &profile, const QString &title, const SharedActions &actions)
{
    // What a row does is copied with the row, and more often than rows are looked at.
    struct Row {
        Profile profile;
        SharedActions actions;
    };
    const auto row = std::make_shared<const Row>(profile, actions);
    return {
        .title = title,
        .id = "profile."_L1 + profile.id(),
        .shortcut = actions->shortcut ? actions->shortcut(profile) : QKeySequence(),
        .icon = [row](int pixels) { return row->actions->icon(row->profile, pixels); },
        .iconPNG = [row](int pixels) { return row->actions->iconPNG(row->profile, pixels); },
        .action = [row] { row->actions->open(row->profile); },
    };
}

void appendSection(Menu &menu, const ProfileStore::MenuSection &section, const ProfileStore &store,
                   const SharedActions &actions)
{
    menu.append({.kind = Kind::header, .title = section.browser.name});
    for (const Profile &profile : section.profiles)
        menu.append(profileRow(profile, store.displayName(profile), actions));
}

} // namespace

Menu profileMenu(const ProfileStore &store, const ProfileMenuActions &actions)
{
    Menu menu;
    const QList<ProfileStore::MenuSection> sections = store.menuSections();
    const auto shared = std::make_shared<const ProfileMenuActions>(actions);
    for (const ProfileStore::MenuSection &section : sections)
        appendSection(menu, section, store, shared);
    if (sections.isEmpty()) {
        //: Disabled text in the menu when there is no profile to choose.
        menu.append({.kind = Kind::text, .title = Texts::tr("No profiles to show")});
        //: Menu command that opens the settings, where profiles are searched.
        menu.append(command(u"findProfiles"_s, Texts::tr("Find Profiles…"), actions.findProfiles));
    }
    menu.append(separator());
    //: Menu command that opens the settings window.
    menu.append(command(u"settings"_s, Texts::tr("Settings…"), actions.showSettings, Qt::CTRL | Qt::Key_Comma));
    menu.append(separator());
    //: Menu command that ends the program.
    menu.append(command(u"quit"_s, Texts::tr("Quit Vantrel"), actions.quit, Qt::CTRL | Qt::Key_Q));
    return menu;
}

} // namespace vantrel
