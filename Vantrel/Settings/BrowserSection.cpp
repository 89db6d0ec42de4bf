#include "Vantrel/Settings/BrowserSection.h"

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Settings)
};

std::optional<BrowserSection::Search> searchOf(const Browser &browser, const ProfileStore &store)
{
    if (browser.family != BrowserFamily::safari)
        return std::nullopt;
    const bool wasSearched = store.searchedSafari().contains(browser.bundleID);
    return BrowserSection::Search{
        //: Buttons that search Safari's menu for profiles, the first time and later.
        .title = wasSearched ? Texts::tr("Find Again") : Texts::tr("Find Profiles"),
        .isPossible = !store.searching().contains(browser.bundleID),
    };
}

SettingsNote neverSearchedNote(const Browser &browser)
{
    return {
        .symbol = u"magnifyingglass"_s,
        //: Beside a Safari whose profiles were never searched. The placeholder is its name; Find Profiles is the
        //: button.
        .text = Texts::tr("Find Profiles opens %1 and reads its profiles from the File menu. macOS asks to allow "
                          "Accessibility and to let Vantrel control %1 and System Events.")
                    .arg(browser.name),
    };
}

SettingsNote accessDeniedNote(const Browser &browser, const BrowserSection::Facts &facts)
{
    if (facts.canRequestAccess(browser.bundleID)) {
        return {
            .symbol = u"lock"_s,
            //: Beside a browser whose profiles the system doesn't let the program read. The placeholder is its name.
            .text = Texts::tr("macOS asks for your permission before Vantrel reads %1's profiles.").arg(browser.name),
            .action = SettingsNote::Action::grantAccess,
        };
    }
    const QString folders = QLocale().createSeparatedList(facts.dataFolders(browser.bundleID));
    return {
        .symbol = u"lock"_s,
        //: Beside a browser whose folder can't be read. First: its name; second: the folder. Try Again is the button.
        .text = Texts::tr("Vantrel isn't allowed to read %1's profiles in %2. Give your user account the right to read "
                          "this folder, then choose Try Again.")
                    .arg(browser.name, folders),
        .action = SettingsNote::Action::tryAgain,
    };
}

QList<SettingsNote> notesOf(const Browser &browser, const ProfileStore &store, const BrowserSection::Facts &facts)
{
    QList<SettingsNote> notes;
    const QString &bundleID = browser.bundleID;
    if (browser.family == BrowserFamily::safari && !store.searchedSafari().contains(bundleID))
        notes.append(neverSearchedNote(browser));
    if (store.accessDenied().contains(bundleID))
        notes.append(accessDeniedNote(browser, facts));
    if (const auto problem = store.problems().constFind(bundleID); problem != store.problems().constEnd())
        notes.append({.symbol = u"exclamationmark.triangle"_s, .text = *problem});
    return notes;
}

} // namespace

QString actionTitle(SettingsNote::Action action)
{
    switch (action) {
    case SettingsNote::Action::none: return {};
    //: Button that asks for the right to read a browser's folder.
    case SettingsNote::Action::grantAccess: return Texts::tr("Grant Access…");
    //: Button that reads a browser's profiles once more.
    case SettingsNote::Action::tryAgain: return Texts::tr("Try Again");
    }
    Q_UNREACHABLE();
}

QList<BrowserSection> BrowserSection::all(const ProfileStore &store, const Facts &facts)
{
    QHash<QString, QList<Profile>> profiles;
    for (const Profile &profile : store.profiles())
        profiles[profile.browserBundleID].append(profile);
    QList<BrowserSection> sections;
    for (const Browser &browser : store.browsers()) {
        sections.append({.browser = browser,
                         .search = searchOf(browser, store),
                         .notes = notesOf(browser, store, facts),
                         .profiles = profiles.take(browser.bundleID)});
    }
    return sections;
}

} // namespace vantrel
