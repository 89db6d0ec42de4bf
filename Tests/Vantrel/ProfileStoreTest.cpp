#include "Vantrel/ProfileStore.h"

#include "Tests/Fakes/FakeLog.h"
#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"
#include "Vantrel/SavedState.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

Browser browser(const QString &bundleID, const QString &name, BrowserFamily family = BrowserFamily::chromium)
{
    return {bundleID, name, QUrl::fromLocalFile(u"/applications/"_s + bundleID), family};
}

const Browser chrome = browser(test::chrome, u"Chrome"_s);
const Browser brave = browser(test::brave, u"Brave"_s);
const Browser firefox = browser(test::firefox, u"Firefox"_s, BrowserFamily::firefox);
const Browser safari = browser(test::safari, u"Safari"_s, BrowserFamily::safari);

Profile profile(const QString &notation)
{
    return test::profiles(notation).first();
}

ProfileReader::Result found(const QStringList &folders)
{
    QList<DiscoveredProfile> profiles;
    for (const QString &folder : folders)
        profiles.append({folder, folder});
    return profiles;
}

class ProfileStoreTest : public testing::Test {
protected:
    ProfileStoreTest()
    {
        QObject::connect(&store_, &ProfileStore::changed, &store_, [this] { ++changes_; });
        QObject::connect(&store_, &ProfileStore::profilesChanged, &store_, [this] { ++listChanges_; });
    }

    /// A store that has these profiles of Chrome and Brave.
    void fill(const QString &notation)
    {
        const SavedState state{test::profiles(notation), {}, {}, {}};
        ASSERT_TRUE(state.write(path_));
        store_.load();
        store_.setBrowsers({brave, chrome});
        forget();
    }

    void forget()
    {
        std::ignore = log_.takeLines();
        changes_ = 0;
        listChanges_ = 0;
    }

    [[nodiscard]] SavedState saved() const { return SavedState::read(path_).value_or(SavedState()); }
    [[nodiscard]] QString list() const { return test::notation(store_.profiles()); }

    test::TemporaryFolder folder_;
    QString path_ = folder_.path(u"app.kestrune.Vantrel/profiles.json"_s);
    test::FakeLog log_;
    ProfileStore store_{path_, log_};
    int changes_ = 0;
    int listChanges_ = 0;
};

TEST_F(ProfileStoreTest, BeginsEmptyAndLive)
{
    EXPECT_TRUE(store_.browsers().isEmpty());
    EXPECT_TRUE(store_.profiles().isEmpty());
    EXPECT_TRUE(store_.hidden().isEmpty());
    EXPECT_TRUE(store_.customNames().isEmpty());
    EXPECT_TRUE(store_.searchedSafari().isEmpty());
    EXPECT_TRUE(store_.accessDenied().isEmpty());
    EXPECT_TRUE(store_.problems().isEmpty());
    EXPECT_TRUE(store_.searching().isEmpty());
    EXPECT_FALSE(store_.started());
    EXPECT_TRUE(store_.isLive());
}

TEST_F(ProfileStoreTest, WithoutASavedFileItStaysEmptyAndLogsNothing)
{
    store_.load();
    EXPECT_TRUE(store_.profiles().isEmpty());
    EXPECT_EQ(log_.takeLines(), QStringList());
    EXPECT_FALSE(QFileInfo::exists(path_));
}

TEST_F(ProfileStoreTest, TakesAllFourMembersOfTheSavedFile)
{
    const SavedState state{
        test::profiles(u"c:1=Work c:private"_s), {u"a"_s, u"b"_s}, {{u"a"_s, u"Name"_s}}, {test::safari}};
    ASSERT_TRUE(state.write(path_));
    store_.load();
    EXPECT_EQ(list(), u"c:1=Work c:private"_s);
    EXPECT_EQ(store_.hidden(), state.hidden);
    EXPECT_EQ(store_.customNames(), state.customNames);
    EXPECT_EQ(store_.searchedSafari(), state.searchedSafari);
    EXPECT_EQ(log_.takeLines(), QStringList());
    EXPECT_EQ(changes_, 1);
    EXPECT_EQ(listChanges_, 1);
}

TEST_F(ProfileStoreTest, ASavedFileWithoutAMemberIsUnreadable)
{
    folder_.write(u"app.kestrune.Vantrel/profiles.json"_s, R"({"profiles": [], "hidden": [], "customNames": {}})");
    store_.load();
    const QStringList lines = log_.takeLines();
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines.first().startsWith("[Profiles] error: Saved profiles unreadable: "_L1))
        << lines.first().toStdString();
    EXPECT_TRUE(lines.first().contains("searchedSafari"_L1)) << lines.first().toStdString();
    EXPECT_TRUE(store_.profiles().isEmpty());
}

TEST_F(ProfileStoreTest, AnUnreadableFileStaysUntilItIsOverwrittenAndIsKeptThen)
{
    const QByteArray damaged = R"({"profiles": [)";
    folder_.write(u"app.kestrune.Vantrel/profiles.json"_s, damaged);
    store_.load();
    EXPECT_EQ(folder_.read(u"app.kestrune.Vantrel/profiles.json"_s), damaged);
    EXPECT_FALSE(QFileInfo::exists(path_ + ".unreadable"_L1));
    forget();
    store_.setHidden(true, profile(u"c:1"_s));
    EXPECT_EQ(folder_.read(u"app.kestrune.Vantrel/profiles.json.unreadable"_s), damaged);
    EXPECT_EQ(saved().hidden, QSet<QString>{profile(u"c:1"_s).id()});
    EXPECT_EQ(log_.takeLines(),
              QStringList(u"[Profiles] Unreadable saved profiles kept as "_s + path_ + u".unreadable"_s));
    store_.setHidden(false, profile(u"c:1"_s));
    EXPECT_EQ(folder_.read(u"app.kestrune.Vantrel/profiles.json.unreadable"_s), damaged);
    EXPECT_EQ(log_.takeLines(), QStringList());
}

TEST_F(ProfileStoreTest, AnUnreadableFileThatCanNotBeKeptIsNotOverwritten)
{
    folder_.write(u"app.kestrune.Vantrel/profiles.json"_s, "damaged");
    folder_.write(u"app.kestrune.Vantrel/profiles.json.unreadable/file"_s);
    store_.load();
    forget();
    store_.setHidden(true, profile(u"c:1"_s));
    EXPECT_EQ(folder_.read(u"app.kestrune.Vantrel/profiles.json"_s), "damaged");
    const QStringList lines = log_.takeLines();
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines.first().startsWith("[Profiles] error: Profiles not saved: "_L1)) << lines.first().toStdString();
    EXPECT_TRUE(store_.hidden().contains(profile(u"c:1"_s).id()));
}

TEST_F(ProfileStoreTest, ASecondDamageIsKeptInPlaceOfTheFirst)
{
    folder_.write(u"app.kestrune.Vantrel/profiles.json"_s, "second");
    folder_.write(u"app.kestrune.Vantrel/profiles.json.unreadable"_s, "first");
    store_.load();
    store_.setHidden(true, profile(u"c:1"_s));
    EXPECT_EQ(folder_.read(u"app.kestrune.Vantrel/profiles.json.unreadable"_s), "second");
}

TEST_F(ProfileStoreTest, AFileThatMayNotBeReadIsKeptToo)
{
    folder_.write(u"open/profiles.json"_s, "anything");
    const test::ClosedPath openFolder(folder_.path(u"open"_s), 0777);
    const test::ClosedPath closedFile(folder_.path(u"open/profiles.json"_s));
    const QString answer = test::answerOfUnprivilegedProcess([this] {
        const QString path = folder_.path(u"open/profiles.json"_s);
        ProfileStore store(path, log_);
        store.load();
        const QString linesOfLoading = log_.takeLines().join(u'|');
        store.setHidden(true, profile(u"c:2"_s));
        const bool isKept = QFileInfo::exists(path + ".unreadable"_L1);
        const qsizetype hidden = SavedState::read(path).value_or(SavedState()).hidden.size();
        return u"%1, kept: %2, hidden: %3"_s.arg(linesOfLoading).arg(isKept).arg(hidden);
    });
    EXPECT_EQ(answer, u", kept: 1, hidden: 1"_s);
}

TEST_F(ProfileStoreTest, ADetachedStoreNeverTouchesTheFile)
{
    const SavedState state{test::profiles(u"c:1"_s), {}, {}, {}};
    ASSERT_TRUE(state.write(path_));
    ProfileStore detached(path_, log_, ProfileStore::Liveness::detached);
    detached.load();
    EXPECT_TRUE(detached.profiles().isEmpty());
    EXPECT_FALSE(detached.begin());
    detached.setBrowsers({chrome});
    detached.apply({{test::chrome, found({u"2"_s})}});
    detached.setHidden(true, profile(u"c:2"_s));
    EXPECT_EQ(test::notation(detached.profiles()), u"c:2 c:private"_s);
    EXPECT_EQ(saved(), state);
    const QString elsewhere = folder_.path(u"elsewhere/profiles.json"_s);
    ProfileStore(elsewhere, log_, ProfileStore::Liveness::detached).setHidden(true, profile(u"c:1"_s));
    EXPECT_FALSE(QFileInfo::exists(folder_.path(u"elsewhere"_s)));
}

TEST_F(ProfileStoreTest, BeginsOnce)
{
    EXPECT_TRUE(store_.begin());
    EXPECT_TRUE(store_.started());
    EXPECT_FALSE(store_.begin());
}

TEST_F(ProfileStoreTest, AFailedSaveIsLoggedAndTriedAgainAtTheNextChange)
{
    folder_.write(u"app.kestrune.Vantrel"_s, "a file in the folder's place");
    store_.setHidden(true, profile(u"c:1"_s));
    const QStringList lines = log_.takeLines();
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines.first().startsWith("[Profiles] error: Profiles not saved: "_L1)) << lines.first().toStdString();
    ASSERT_TRUE(QFile::remove(folder_.path(u"app.kestrune.Vantrel"_s)));
    store_.setHidden(true, profile(u"c:2"_s));
    EXPECT_EQ(saved().hidden.size(), 2);
}

TEST_F(ProfileStoreTest, HidingAProfileTakesItFromTheMenuOnly)
{
    fill(u"c:1 c:2 b:1"_s);
    store_.setHidden(true, profile(u"c:1"_s));
    EXPECT_EQ(store_.menuSections(), QList<ProfileStore::MenuSection>(
                                         {{brave, test::profiles(u"b:1"_s)}, {chrome, test::profiles(u"c:2"_s)}}));
    EXPECT_EQ(test::notation(store_.profilesOf(test::chrome)), u"c:1 c:2"_s);
    EXPECT_EQ(saved().hidden, QSet<QString>{profile(u"c:1"_s).id()});
    EXPECT_EQ(changes_, 1);
    EXPECT_EQ(listChanges_, 0);
    store_.setHidden(false, profile(u"c:1"_s));
    EXPECT_EQ(store_.menuSections().last().profiles.size(), 2);
    EXPECT_TRUE(saved().hidden.isEmpty());
}

TEST_F(ProfileStoreTest, ABrowserWithOnlyHiddenProfilesIsNotInTheMenu)
{
    fill(u"c:1 b:1"_s);
    store_.setHidden(true, profile(u"c:1"_s));
    EXPECT_EQ(store_.menuSections(), QList<ProfileStore::MenuSection>({{brave, test::profiles(u"b:1"_s)}}));
}

TEST_F(ProfileStoreTest, ProfilesOfABrowserThatIsNotInstalledAreNotInTheMenu)
{
    fill(u"c:1 f:1"_s);
    EXPECT_EQ(store_.menuSections(), QList<ProfileStore::MenuSection>({{chrome, test::profiles(u"c:1"_s)}}));
    EXPECT_EQ(store_.browser(profile(u"f:1"_s)), nullptr);
}

TEST_F(ProfileStoreTest, TheUsersNameIsShownInPlaceOfTheBrowsers)
{
    fill(u"c:1=Work c:private"_s);
    const Profile work = profile(u"c:1=Work"_s);
    EXPECT_EQ(store_.displayName(work), u"Work"_s);
    store_.rename(work, u" \t\nOffice\u00A0 \r\n"_s);
    EXPECT_EQ(store_.displayName(work), u"Office"_s);
    EXPECT_EQ(saved().customNames, store_.customNames());
    EXPECT_EQ(store_.displayName(profile(u"c:private"_s)), u"Incognito Window"_s);
    EXPECT_EQ(changes_, 1);
}

TEST_F(ProfileStoreTest, TheBrowsersOwnNameOrNoneTakesTheUsersAway)
{
    fill(u"c:1=Work c:private"_s);
    const Profile work = profile(u"c:1=Work"_s);
    const Profile privateWindow = profile(u"c:private"_s);
    for (const QString &name : {u"  Work  "_s, u""_s, u" \n\t"_s}) {
        store_.rename(work, u"Office"_s);
        store_.rename(work, name);
        EXPECT_TRUE(store_.customNames().isEmpty()) << name.toStdString();
    }
    store_.rename(privateWindow, u"Secret"_s);
    EXPECT_EQ(store_.displayName(privateWindow), u"Secret"_s);
    store_.rename(privateWindow, u"Incognito Window"_s);
    EXPECT_TRUE(store_.customNames().isEmpty());
    EXPECT_TRUE(saved().customNames.isEmpty());
}

TEST_F(ProfileStoreTest, AnyNameIsKeptAsItIs)
{
    fill(u"c:1"_s);
    for (const QString &name : test::oddTexts()) {
        store_.rename(profile(u"c:1"_s), name);
        const QString kept = name.trimmed();
        EXPECT_EQ(store_.displayName(profile(u"c:1"_s)), kept.isEmpty() ? u"1"_s : kept);
        EXPECT_EQ(saved().customNames, store_.customNames());
    }
}

TEST_F(ProfileStoreTest, MovingARowLeavesEveryOtherBrowserInPlace)
{
    fill(u"b:1 b:2 c:1 c:2 c:3"_s);
    store_.move(chrome, {2}, 0);
    EXPECT_EQ(list(), u"b:1 b:2 c:3 c:1 c:2"_s);
    EXPECT_EQ(saved().profiles, store_.profiles());
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Profiles] com.google.Chrome: moved 2 to 0; changed: true"_s));
    EXPECT_EQ(changes_, 1);
    EXPECT_EQ(listChanges_, 1);
}

TEST_F(ProfileStoreTest, MovingARowOntoItselfIsLoggedAndNotSaved)
{
    fill(u"c:1 c:2"_s);
    ASSERT_TRUE(QFile::remove(path_));
    store_.move(chrome, {1, 0}, 0);
    store_.move(chrome, {1}, 2);
    EXPECT_EQ(log_.takeLines(), QStringList({u"[Profiles] com.google.Chrome: moved 0,1 to 0; changed: false"_s,
                                             u"[Profiles] com.google.Chrome: moved 1 to 2; changed: false"_s}));
    EXPECT_FALSE(QFileInfo::exists(path_));
    EXPECT_EQ(changes_, 0);
}

TEST_F(ProfileStoreTest, ASuccessfulRunIsMergedAndSaved)
{
    fill(u"c:2=Two c:private c:9"_s);
    store_.apply({{test::chrome, found({u"1"_s, u"2"_s})}, {test::brave, found({u"1"_s})}});
    EXPECT_EQ(list(), u"c:2 c:1 c:private b:1 b:private"_s);
    EXPECT_EQ(saved().profiles, store_.profiles());
    EXPECT_EQ(log_.takeLines(), QStringList({u"[Profiles] com.brave.Browser: 1 profiles"_s,
                                             u"[Profiles] com.google.Chrome: 2 profiles"_s}));
}

TEST_F(ProfileStoreTest, EveryInstalledBrowserHasItsPrivateWindowAfterARun)
{
    store_.setBrowsers({safari, chrome, firefox});
    store_.apply({{test::chrome, found({u"1"_s})}});
    EXPECT_EQ(list(), u"s:private c:1 c:private f:private"_s);
}

TEST_F(ProfileStoreTest, ADeniedBrowserKeepsItsProfilesAndIsNoted)
{
    fill(u"c:1=Saved c:private"_s);
    store_.apply({{test::chrome, std::unexpected(ProfileDiscoveryError::accessDenied(u"/data"_s))}});
    EXPECT_EQ(store_.accessDenied(), QSet<QString>{test::chrome});
    EXPECT_TRUE(store_.problems().isEmpty());
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Profiles] com.google.Chrome: access to its profiles denied"_s));
    EXPECT_EQ(test::notation(store_.profilesOf(test::chrome)), u"c:1=Saved c:private"_s);
    store_.apply({{test::chrome, found({u"1"_s})}});
    EXPECT_TRUE(store_.accessDenied().isEmpty());
}

TEST_F(ProfileStoreTest, AnUnreadableBrowserKeepsItsProfilesAndHasAProblem)
{
    fill(u"c:1=Saved c:private"_s);
    store_.apply({{test::chrome, std::unexpected(ProfileDiscoveryError::readFailed(u"/data"_s, u"Disk on fire"_s))}});
    EXPECT_EQ(store_.problems(), (QHash<QString, QString>{{test::chrome, u"Disk on fire"_s}}));
    EXPECT_TRUE(store_.accessDenied().isEmpty());
    EXPECT_EQ(log_.takeLines(),
              QStringList(u"[Profiles] error: com.google.Chrome: profiles unreadable: Disk on fire"_s));
    EXPECT_EQ(test::notation(store_.profilesOf(test::chrome)), u"c:1=Saved c:private"_s);
    store_.apply({{test::chrome, found({u"1"_s})}});
    EXPECT_TRUE(store_.problems().isEmpty());
}

TEST_F(ProfileStoreTest, ARunThatFindsTheSameDoesNotChangeTheList)
{
    fill(u"b:private c:1 c:private"_s);
    store_.apply({{test::chrome, found({u"1"_s})}});
    EXPECT_EQ(listChanges_, 0);
    EXPECT_EQ(changes_, 1);
}

TEST_F(ProfileStoreTest, AProfileThatComesBackHasItsNameAndIsStillHidden)
{
    fill(u"c:1 c:2"_s);
    store_.rename(profile(u"c:1"_s), u"Mine"_s);
    store_.setHidden(true, profile(u"c:1"_s));
    store_.apply({{test::chrome, found({u"2"_s})}});
    EXPECT_FALSE(test::ids(store_.profiles()).contains(profile(u"c:1"_s).id()));
    store_.apply({{test::chrome, found({u"1"_s, u"2"_s})}});
    EXPECT_EQ(store_.displayName(profile(u"c:1"_s)), u"Mine"_s);
    EXPECT_TRUE(store_.hidden().contains(profile(u"c:1"_s).id()));
}

TEST_F(ProfileStoreTest, ResultsOfBrowsersThatAreNotInstalledAreIgnored)
{
    fill(u"c:1"_s);
    store_.apply({{test::firefox, found({u"/f"_s})}});
    EXPECT_EQ(log_.takeLines(), QStringList());
    EXPECT_EQ(list(), u"c:1 c:private b:private"_s);
}

} // namespace
} // namespace vantrel
