#pragma once

#include "Platform/LogChannel.h"
#include "Vantrel/BrowserDiscovery.h"
#include "Vantrel/ProfileCatalogue.h"
#include "Vantrel/SafariSearch.h"

#include <QObject>
#include <QSet>

namespace vantrel {

/// The app's single source of truth about browsers and profiles: those there are, the user's choices about them and how
/// the last discovery of each browser went. The saved part is written as a whole after every change. Main thread only.
class ProfileStore final : public QObject {
    Q_OBJECT

public:
    enum class Liveness : std::uint8_t {
        live,
        /// For previews and tests: never reads or writes the saved file.
        detached,
    };

    /// A browser with those of its profiles that the menu shows.
    struct MenuSection {
        Browser browser;
        QList<Profile> profiles;

        friend bool operator==(const MenuSection &, const MenuSection &) = default;
    };

    /// Touches no file. The log must outlive the store.
    ProfileStore(QString savedStatePath, LogSink &log, Liveness liveness = Liveness::live);

    /// Installed browsers in the order in which they are shown.
    [[nodiscard]] const QList<Browser> &browsers() const { return catalogue_.browsers; }
    /// Every known profile of every browser, in the user's order, the profiles of a browser together.
    [[nodiscard]] const QList<Profile> &profiles() const { return catalogue_.profiles; }
    /// The ids of the profiles that the user has hidden from the menu, also of profiles that are gone for now.
    [[nodiscard]] const QSet<QString> &hidden() const { return catalogue_.hidden; }
    /// The names that the user gave, by profile id, also of profiles that are gone for now.
    [[nodiscard]] const QHash<QString, QString> &customNames() const { return catalogue_.customNames; }
    /// The Safari browsers whose profiles have been searched at least once.
    [[nodiscard]] const QSet<QString> &searchedSafari() const { return searchedSafari_; }
    /// The browsers whose data folder the system refused to list.
    [[nodiscard]] const QSet<QString> &accessDenied() const { return accessDenied_; }
    /// Why a browser's last discovery failed.
    [[nodiscard]] const QHash<QString, QString> &problems() const { return problems_; }
    /// The Safari browsers whose menu is being searched now.
    [[nodiscard]] const QSet<QString> &searching() const { return searching_; }
    /// Whether the start sequence has run.
    [[nodiscard]] bool started() const { return started_; }
    [[nodiscard]] bool isLive() const { return liveness_ == Liveness::live; }

    /// The part that has to do with names and titles.
    [[nodiscard]] const ProfileCatalogue &catalogue() const { return catalogue_; }
    [[nodiscard]] QString displayName(const Profile &profile) const { return catalogue_.displayName(profile); }
    /// Null when the browser isn't installed. Valid until the store changes.
    [[nodiscard]] const Browser *browser(const Profile &profile) const { return catalogue_.browser(profile); }
    /// A browser's profiles in their order, hidden ones included.
    [[nodiscard]] QList<Profile> profilesOf(const QString &browserBundleID) const;
    /// The browsers with profiles that aren't hidden.
    [[nodiscard]] QList<MenuSection> menuSections() const;

    /// Reads the saved file. One that can't be read leaves the store empty; it is kept beside when it is first
    /// overwritten.
    void load();
    /// Marks the start sequence as run; false when it had run already, or when the store isn't live.
    [[nodiscard]] bool begin();
    void setBrowsers(const QList<Browser> &browsers);
    /// Takes in what a discovery run found, and saves.
    void apply(const DiscoveryResults &results);
    /// Marks a Safari as being searched for profiles; false when it is already.
    [[nodiscard]] bool beginSafariSearch(const QString &bundleID);
    /// Takes in what that search found, and saves. When it failed, the known profiles stay.
    void endSafariSearch(const QString &bundleID, const SafariSearch::Result &found);

    void setHidden(bool isHidden, const Profile &profile);
    /// Gives a profile a name of the user's own. Blanks around it don't count; an empty name or the profile's own takes
    /// the user's away.
    void rename(const Profile &profile, const QString &name);
    /// Moves rows of a browser's group; `positions` and `destination` count as in `ProfileList::move`.
    void move(const Browser &browser, const QSet<qsizetype> &positions, qsizetype destination);

Q_SIGNALS:
    /// Anything has changed.
    void changed();
    /// The list of profiles has changed. `changed` follows.
    void profilesChanged();

private:
    void save();
    [[nodiscard]] bool keepUnreadableFile();
    void setProfiles(const QList<Profile> &profiles);
    void note(const Browser &browser, const ProfileReader::Result &result);
    void takeSafariProfiles(const QString &bundleID, const QList<ProfileTarget::SafariProfile> &found);

    QString savedStatePath_;
    LogChannel log_;
    Liveness liveness_;
    ProfileCatalogue catalogue_;
    QSet<QString> searchedSafari_;
    QSet<QString> accessDenied_;
    QHash<QString, QString> problems_;
    QSet<QString> searching_;
    bool started_ = false;
    /// The saved file holds what could not be read and may be worth a copy.
    bool hasUnreadableFile_ = false;
};

} // namespace vantrel
