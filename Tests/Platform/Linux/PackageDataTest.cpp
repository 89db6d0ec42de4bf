#include "Platform/Linux/PackageData.h"

#include "Tests/Contract/BrowserDataContract.h"
#include "Tests/Platform/Linux/PlantedHome.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString helium = u"net.imput.helium"_s;
const QString nightly = u"org.mozilla.nightly"_s;
const QString opera = u"com.operasoftware.Opera"_s;
const QString operaGX = u"com.operasoftware.OperaGX"_s;
const QString iron = u"de.srware.iron"_s;

const BrowserPackage &package(const QString &bundleID, Packaging packaging = Packaging::native)
{
    for (const BrowserPackage *package : BrowserPackage::ofBrowser(bundleID)) {
        if (package->packaging == packaging)
            return *package;
    }
    qFatal("%s has no such package.", qPrintable(bundleID));
}

DesktopEntry entryWith(const QString &exec)
{
    DesktopEntry entry;
    entry.exec = exec;
    return entry;
}

class PackageData : public testing::Test {
protected:
    /// Paths below the home, the others whole.
    [[nodiscard]] QStringList candidates(const BrowserPackage &package, const QString &exec = u"browser %U"_s)
    {
        return shortened(candidateDataFolders(package, entryWith(exec), home_.environment()));
    }

    [[nodiscard]] QStringList shortened(QStringList paths) const
    {
        for (QString &path : paths) {
            if (path.startsWith(home_.path() + u'/'))
                path = path.sliced(home_.path().size() + 1);
        }
        return paths;
    }

    /// Candidates and answer are below the home.
    [[nodiscard]] QStringList actual(const QString &bundleID, const QStringList &candidates) const
    {
        QStringList folders;
        for (const QString &candidate : candidates)
            folders.append(home_.path(candidate));
        QStringList paths;
        for (const BrowserDataFolder &folder : actualDataFolders(bundleID, folders))
            paths.append(folder.path);
        return shortened(paths);
    }

    [[nodiscard]] BrowserDataFolder::Layout layout(const QString &bundleID, const QString &folder) const
    {
        const auto folders = actualDataFolders(bundleID, {home_.path(folder)});
        EXPECT_EQ(folders.size(), 1);
        return folders.value(0).layout;
    }

    test::PlantedHome home_;
};

constexpr auto many = BrowserDataFolder::Layout::manyProfiles;
constexpr auto single = BrowserDataFolder::Layout::singleProfile;

TEST_F(PackageData, EachPackagingHasItsPlaceForData)
{
    const QString vivaldi = u"com.vivaldi.Vivaldi"_s;
    EXPECT_EQ(candidates(package(vivaldi)), QStringList(u".config/vivaldi"_s));
    EXPECT_EQ(candidates(package(vivaldi, Packaging::flatpak)),
              QStringList(u".var/app/com.vivaldi.Vivaldi/config/vivaldi"_s));
    EXPECT_EQ(candidates(package(vivaldi, Packaging::snap)),
              (QStringList{u"snap/vivaldi/current/.config/vivaldi"_s, u"snap/vivaldi/common/.config/vivaldi"_s}));
    EXPECT_EQ(candidates(package(test::firefox, Packaging::flatpak)),
              (QStringList{u".var/app/org.mozilla.firefox/.mozilla/firefox"_s,
                           u".var/app/org.mozilla.firefox/config/mozilla/firefox"_s}));
    EXPECT_EQ(candidates(package(test::firefox, Packaging::snap)),
              QStringList(u"snap/firefox/common/.mozilla/firefox"_s));
    EXPECT_EQ(candidates(package(iron)), (QStringList{u".config/iron"_s, u".config/chromium"_s}));
}

TEST_F(PackageData, VariablesMoveNativeChromiumBrowsersOnly)
{
    home_.variables().insert(u"XDG_CONFIG_HOME"_s, u"/config"_s);
    home_.variables().insert(u"CHROME_CONFIG_HOME"_s, u"/chrome"_s);
    home_.variables().insert(u"HELIUM_CONFIG_HOME"_s, u"/helium"_s);
    EXPECT_EQ(candidates(package(test::chrome)), QStringList(u"/chrome/google-chrome"_s));
    EXPECT_EQ(candidates(package(helium)), QStringList(u"/helium/net.imput.helium"_s));
    EXPECT_EQ(candidates(package(test::chrome, Packaging::flatpak)),
              QStringList(u".var/app/com.google.Chrome/config/google-chrome"_s));
    EXPECT_EQ(candidates(package(helium, Packaging::flatpak)),
              QStringList(u".var/app/net.imput.helium/config/net.imput.helium"_s));
    EXPECT_EQ(candidates(package(test::brave, Packaging::snap)),
              QStringList(u"snap/brave/current/.config/BraveSoftware/Brave-Browser"_s));
    EXPECT_EQ(candidates(package(test::firefox)).first(), u"/config/mozilla/firefox"_s);
}

TEST_F(PackageData, WithoutItsOwnVariableABrowserKeepsToTheConfigurationFolder)
{
    home_.variables().insert(u"XDG_CONFIG_HOME"_s, u"/config"_s);
    home_.variables().insert(u"HELIUM_CONFIG_HOME"_s, u"/helium"_s);
    EXPECT_EQ(candidates(package(test::chrome)), QStringList(u"/config/google-chrome"_s));
    home_.variables().remove(u"HELIUM_CONFIG_HOME"_s);
    home_.variables().insert(u"CHROME_CONFIG_HOME"_s, u"/chrome"_s);
    EXPECT_EQ(candidates(package(helium)), QStringList(u"/config/net.imput.helium"_s));
}

TEST_F(PackageData, AVariableNamesTheDataFolderOfAnyNativeChromiumBrowser)
{
    home_.variables().insert(u"CHROME_CONFIG_HOME"_s, u"/chrome"_s);
    home_.variables().insert(u"CHROME_USER_DATA_DIR"_s, u"/user data"_s);
    for (const QString &bundleID : {test::chrome, test::brave, iron, helium, opera})
        EXPECT_EQ(candidates(package(bundleID)), QStringList(u"/user data"_s)) << bundleID.toStdString();
    EXPECT_EQ(candidates(package(test::brave, Packaging::snap)),
              QStringList(u"snap/brave/current/.config/BraveSoftware/Brave-Browser"_s));
    EXPECT_EQ(candidates(package(test::brave, Packaging::flatpak)),
              QStringList(u".var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser"_s));
    EXPECT_FALSE(candidates(package(test::firefox)).contains(u"/user data"_s));
}

TEST_F(PackageData, TheEntrysOwnSwitchNamesTheDataFolder)
{
    home_.variables().insert(u"CHROME_USER_DATA_DIR"_s, u"/user data"_s);
    const std::vector<std::pair<QString, QStringList>> rows{
        {u"browser --user-data-dir=/data %U"_s, {u"/data"_s}},
        {u"browser --a \"--user-data-dir=/my data\" %U"_s, {u"/my data"_s}},
        {u"browser --user-data-dir='/my data'"_s, {u"/my data"_s}},
        {u"env A=B browser --user-data-dir=/data --user-data-dir=/other"_s, {u"/data"_s}},
        {u"browser --user-data-dir /data"_s, {u"/user data"_s}},
        {u"browser --my--user-data-dir=/data"_s, {u"/user data"_s}},
        {u"browser \"--user-data-dir=/half"_s, {u"/user data"_s}},
    };
    for (const auto &[exec, expected] : rows)
        EXPECT_EQ(candidates(package(test::chrome), exec), expected) << exec.toStdString();
    const QString exec = u"flatpak run browser --user-data-dir=/data"_s;
    EXPECT_EQ(candidates(package(test::chrome, Packaging::flatpak), exec), QStringList(u"/data"_s));
    EXPECT_EQ(candidates(package(test::brave, Packaging::snap), exec), QStringList(u"/data"_s));
    EXPECT_FALSE(candidates(package(test::firefox), exec).contains(u"/data"_s));
    EXPECT_FALSE(candidates(package(test::firefox, Packaging::flatpak), exec).contains(u"/data"_s));
}

TEST_F(PackageData, APercentSignInTheEntrysSwitchIsWrittenTwice)
{
    EXPECT_EQ(candidates(package(test::chrome), u"browser --user-data-dir=/data/100%% %U"_s),
              QStringList(u"/data/100%"_s));
}

TEST_F(PackageData, NativeFirefoxesShareTheirFoldersAndTheNightlyOfOneSystemHasAnother)
{
    const QStringList roots{u".config/mozilla/firefox"_s, u".mozilla/firefox"_s};
    for (const QString &bundleID : {test::firefox, u"org.mozilla.firefoxbeta"_s, u"org.mozilla.aurora"_s,
                                    u"org.mozilla.firefoxdeveloperedition"_s})
        EXPECT_EQ(candidates(package(bundleID)), roots) << bundleID.toStdString();
    EXPECT_EQ(candidates(package(nightly)), roots + QStringList(u".mozilla/firefox-trunk"_s));
    EXPECT_EQ(candidates(package(test::zen)), (QStringList{u".config/zen"_s, u".zen"_s}));
}

TEST_F(PackageData, FirefoxsOldFolderCountsWhenALinkLeadsToItAndNotWhenTheLinkDangles)
{
    const QString oldRoot = u".mozilla/firefox"_s;
    home_.link(oldRoot, home_.path(u"elsewhere"_s));
    EXPECT_EQ(candidates(package(test::firefox)).last(), oldRoot);
    home_.makeFolder(u"elsewhere"_s);
    EXPECT_EQ(candidates(package(test::firefox)).first(), oldRoot);
}

TEST_F(PackageData, ProfilesShowByTheFilesOfTheFamily)
{
    const std::vector<std::tuple<QString, QString, bool>> rows{
        {test::chrome, u"Local State"_s, false},
        {test::chrome, u"Preferences"_s, true},
        {test::chrome, u"Default/Preferences"_s, true},
        {test::chrome, u"Default/anything"_s, true},
        {test::chrome, u"Profile 12/anything"_s, true},
        {test::chrome, u"System Profile/anything"_s, false},
        {test::chrome, u"Default"_s, false},
        {test::chrome, u"profiles.ini"_s, false},
        {test::chrome, u"local state"_s, false},
        {test::firefox, u"profiles.ini"_s, true},
        {test::firefox, u"Profile Groups/a.sqlite"_s, true},
        {test::firefox, u"installs.ini"_s, false},
        {test::firefox, u"Default/Preferences"_s, false},
        {test::firefox, u"Local State"_s, false},
        {test::zen, u"profiles.ini"_s, true},
        {test::zen, u"Crash Reports/x"_s, false},
    };
    for (const auto &[bundleID, file, expected] : rows) {
        const test::TemporaryFolder folder;
        folder.write(file);
        EXPECT_EQ(holdsProfiles(bundleID, folder.path()), expected)
            << bundleID.toStdString() << ' ' << file.toStdString();
    }
}

TEST_F(PackageData, AFolderThatIsMissingOrEmptyHoldsNone)
{
    for (const QString &bundleID : {test::chrome, test::firefox}) {
        EXPECT_FALSE(holdsProfiles(bundleID, home_.path(u"missing"_s)));
        EXPECT_FALSE(holdsProfiles(bundleID, home_.makeFolder(u"empty"_s)));
    }
}

TEST_F(PackageData, AFolderThatCannotBeReadCountsSoThatItComesToLight)
{
    home_.write(u"file"_s);
    for (const QString &bundleID : {test::chrome, test::firefox})
        EXPECT_TRUE(holdsProfiles(bundleID, home_.path(u"file"_s)));
    const test::ClosedPath closed(home_.makeFolder(u"closed"_s));
    const auto answer = [this] {
        const bool counts = holdsProfiles(test::chrome, home_.path(u"closed"_s)) &&
                            holdsProfiles(test::firefox, home_.path(u"closed"_s));
        return counts ? u"counts"_s : u"does not count"_s;
    };
    EXPECT_EQ(test::answerOfUnprivilegedProcess(answer), u"counts"_s);
}

TEST_F(PackageData, AChromiumBrowserHasTheFirstFolderWithProfilesElseTheFirstThatExistsElseTheFirst)
{
    const QStringList all{u"a"_s, u"b"_s, u"c"_s};
    EXPECT_EQ(actual(iron, all), QStringList(u"a"_s));
    home_.makeFolder(u"b"_s);
    home_.makeFolder(u"c"_s);
    EXPECT_EQ(actual(iron, all), QStringList(u"b"_s));
    home_.write(u"c/Profile 1/Preferences"_s);
    EXPECT_EQ(actual(iron, all), QStringList(u"c"_s));
    home_.write(u"b/Default/Preferences"_s);
    EXPECT_EQ(actual(iron, all), QStringList(u"b"_s));
    EXPECT_EQ(actual(iron, {u"missing"_s}), QStringList(u"missing"_s));
}

TEST_F(PackageData, AFirefoxHasAllFoldersWithProfilesElseTheFirst)
{
    const QStringList all{u"a"_s, u"b"_s, u"c"_s};
    home_.makeFolder(u"b"_s);
    EXPECT_EQ(actual(test::firefox, all), QStringList(u"a"_s));
    home_.write(u"c/profiles.ini"_s);
    EXPECT_EQ(actual(test::firefox, all), QStringList(u"c"_s));
    home_.write(u"a/profiles.ini"_s);
    EXPECT_EQ(actual(test::firefox, all), (QStringList{u"a"_s, u"c"_s}));
}

TEST_F(PackageData, OneFolderUnderTwoNamesCountsOnceAsTheFirst)
{
    home_.write(u"real/profiles.ini"_s);
    home_.link(u"link"_s, home_.path(u"real"_s));
    EXPECT_EQ(actual(test::firefox, {u"link"_s, u"real"_s}), QStringList(u"link"_s));
    EXPECT_EQ(actual(test::firefox, {u"real"_s, u"link"_s, u"real/../real"_s}), QStringList(u"real"_s));
}

TEST_F(PackageData, FoldersAreTheSameWhenOneNameLeadsToTheOther)
{
    home_.makeFolder(u"real"_s);
    home_.makeFolder(u"other"_s);
    home_.link(u"link"_s, home_.path(u"real"_s));
    const auto isSame = [this](const QString &left, const QString &right) {
        return isSameFolder(home_.path(left), home_.path(right));
    };
    EXPECT_TRUE(isSame(u"real"_s, u"link"_s));
    EXPECT_TRUE(isSame(u"missing"_s, u"missing"_s));
    EXPECT_FALSE(isSame(u"real"_s, u"other"_s));
    EXPECT_FALSE(isSame(u"real"_s, u"missing"_s));
    EXPECT_FALSE(isSame(u"missing"_s, u"gone"_s));
}

TEST_F(PackageData, WithoutCandidatesThereAreNoFolders)
{
    for (const QString &bundleID : {test::chrome, test::firefox})
        EXPECT_EQ(actualDataFolders(bundleID, {}), QList<BrowserDataFolder>());
}

TEST_F(PackageData, AnOldOperasFolderIsItselfTheProfile)
{
    home_.write(u"old/Preferences"_s);
    home_.write(u"new/Preferences"_s);
    home_.write(u"new/Default/Preferences"_s);
    home_.write(u"started/Preferences"_s);
    home_.makeFolder(u"started/Default"_s);
    home_.makeFolder(u"empty"_s);
    for (const QString &bundleID : {opera, operaGX}) {
        EXPECT_EQ(layout(bundleID, u"old"_s), single);
        EXPECT_EQ(layout(bundleID, u"new"_s), many);
        EXPECT_EQ(layout(bundleID, u"started"_s), single);
        EXPECT_EQ(layout(bundleID, u"empty"_s), many);
        EXPECT_EQ(layout(bundleID, u"missing"_s), many);
    }
    EXPECT_EQ(layout(test::chrome, u"old"_s), many);
}

TEST_F(PackageData, TheOldLayoutIsSeenAmongSeveralCandidates)
{
    home_.write(u"common/Preferences"_s);
    const QStringList folders{home_.path(u"current"_s), home_.path(u"common"_s)};
    const QList<BrowserDataFolder> expected{{.path = folders.last(), .layout = single}};
    EXPECT_EQ(actualDataFolders(operaGX, folders), expected);
}

} // namespace
} // namespace vantrel
