#include "Platform/Linux/InstallationFinder.h"

#include "Tests/Platform/Linux/PlantedHome.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString vivaldi = u"com.vivaldi.Vivaldi"_s;
const QString edgeBeta = u"com.microsoft.edgemac.Beta"_s;
const QString chromium = u"org.chromium.Chromium"_s;
const QString ungoogled = u"com.chromium.ungoogled"_s;
const QString iron = u"de.srware.iron"_s;
const QString yandex = u"com.yandex.desktop"_s;

const QString share = u"share/applications"_s;
const QString otherShare = u"other/share/applications"_s;
const QString userShare = u".local/share/applications"_s;
const QString userFlatpak = u".local/share/flatpak/exports/share/applications"_s;

/// What the fixture says of an entry in a folder.
QString entry(const QString &folder, const QString &name, QLatin1StringView packaging)
{
    return folder + u'/' + name + " of "_L1 + packaging;
}

class InstallationFinderTest : public testing::Test {
protected:
    /// The entry that was found, below the home, and what it belongs to: "NAME of native".
    [[nodiscard]] QString found(const QString &bundleID)
    {
        const auto installation = InstallationFinder(home_.environment()).find(bundleID);
        if (!installation)
            return u"nothing"_s;
        const char *packaging[]{"native", "flatpak", "snap"};
        return installation->entry.path.sliced(home_.path().size() + 1) + " of "_L1 +
               QLatin1StringView(packaging[static_cast<size_t>(installation->package->packaging)]);
    }

    [[nodiscard]] QString dataFolder(const QString &bundleID)
    {
        const auto installation = InstallationFinder(home_.environment()).find(bundleID);
        if (!installation || installation->dataFolders.isEmpty())
            return u"nothing"_s;
        return installation->dataFolders.first().path.sliced(home_.path().size() + 1);
    }

    void installFlatpak(const QString &id, const QString &folder = otherShare) const
    {
        home_.installEntry(id + u".desktop"_s, "X-Flatpak=" + id.toUtf8() + '\n', folder);
    }

    void installSnap(const QString &name) const
    {
        home_.installEntry(name + u'_' + name + u".desktop"_s, "X-SnapInstanceName=" + name.toUtf8() + '\n',
                           otherShare);
    }

    test::PlantedHome home_;
};

TEST_F(InstallationFinderTest, WithoutEntriesNoBrowserIsFound)
{
    for (const QString &bundleID : {test::chrome, test::firefox, test::safari, test::unknownBrowser, QString()})
        EXPECT_EQ(found(bundleID), u"nothing"_s) << bundleID.toStdString();
}

TEST_F(InstallationFinderTest, EntriesAreFoundInEveryFolderTheWeightiestFirst)
{
    QStringList places{userShare, userFlatpak, share, otherShare};
    while (!places.isEmpty()) {
        home_.installEntry(u"google-chrome.desktop"_s, {}, places.last());
        EXPECT_EQ(found(test::chrome), places.last() + "/google-chrome.desktop of native"_L1);
        places.removeLast();
    }
}

TEST_F(InstallationFinderTest, AVariableMovesTheUsersFolders)
{
    home_.variables().insert(u"XDG_DATA_HOME"_s, home_.path(u"data"_s));
    home_.installEntry(u"google-chrome.desktop"_s, {}, u"data/flatpak/exports/share/applications"_s);
    EXPECT_EQ(found(test::chrome), u"data/flatpak/exports/share/applications/google-chrome.desktop of native"_s);
    home_.installEntry(u"google-chrome.desktop"_s, {}, u"data/applications"_s);
    EXPECT_EQ(found(test::chrome), u"data/applications/google-chrome.desktop of native"_s);
}

TEST_F(InstallationFinderTest, TheLikelierNameWinsOverTheWeightierFolder)
{
    home_.installEntry(u"firefox-esr.desktop"_s, {}, userShare);
    EXPECT_EQ(found(test::firefox), entry(userShare, u"firefox-esr.desktop"_s, "native"_L1));
    home_.installEntry(u"firefox.desktop"_s, {}, otherShare);
    EXPECT_EQ(found(test::firefox), entry(otherShare, u"firefox.desktop"_s, "native"_L1));
}

TEST_F(InstallationFinderTest, NamesAreComparedExactly)
{
    for (const QString &name : {u"google-chrome-beta.desktop"_s, u"Google-Chrome.desktop"_s, u"google-chrome"_s,
                                u"google-chrome.desktop.bak"_s, u"sub/google-chrome.desktop"_s})
        home_.installEntry(name);
    EXPECT_EQ(found(test::chrome), u"nothing"_s);
    EXPECT_EQ(found(u"com.google.Chrome.beta"_s), entry(share, u"google-chrome-beta.desktop"_s, "native"_L1));
}

TEST_F(InstallationFinderTest, AHiddenEntryHidesThoseOfLessWeightAndNoOthers)
{
    home_.installEntry(u"firefox.desktop"_s, {}, otherShare);
    home_.write(share + "/firefox.desktop"_L1, "[Desktop Entry]\nHidden=true\n");
    EXPECT_EQ(found(test::firefox), u"nothing"_s);
    home_.installEntry(u"firefox-esr.desktop"_s, {}, otherShare);
    EXPECT_EQ(found(test::firefox), entry(otherShare, u"firefox-esr.desktop"_s, "native"_L1));
    home_.installEntry(u"firefox.desktop"_s, {}, userShare);
    EXPECT_EQ(found(test::firefox), entry(userShare, u"firefox.desktop"_s, "native"_L1));
}

TEST_F(InstallationFinderTest, AnUnusableEntryLeavesThePlaceToTheNext)
{
    const std::vector<QByteArray> contents{test::desktopEntry(u"/no/such/program"_s),
                                           test::desktopEntry(u"/bin/sh"_s, "TryExec=/no/such/program\n"),
                                           "no entry at all",
                                           {}};
    home_.installEntry(u"google-chrome.desktop"_s, {}, otherShare);
    for (const QByteArray &content : contents) {
        home_.write(share + "/google-chrome.desktop"_L1, content);
        EXPECT_EQ(found(test::chrome), entry(otherShare, u"google-chrome.desktop"_s, "native"_L1))
            << content.constData();
    }
}

TEST_F(InstallationFinderTest, AFolderInAnEntrysPlaceLeavesThePlaceToTheNext)
{
    home_.makeFolder(share + "/google-chrome.desktop"_L1);
    EXPECT_EQ(found(test::chrome), u"nothing"_s);
    home_.installEntry(u"google-chrome.desktop"_s, {}, otherShare);
    EXPECT_EQ(found(test::chrome), entry(otherShare, u"google-chrome.desktop"_s, "native"_L1));
}

TEST_F(InstallationFinderTest, AnEntryThatMenusDoNotShowCounts)
{
    home_.installEntry(u"com.google.Chrome.desktop"_s, "NoDisplay=true\n");
    EXPECT_EQ(found(test::chrome), entry(share, u"com.google.Chrome.desktop"_s, "native"_L1));
}

TEST_F(InstallationFinderTest, AFlatpakIsKnownByItsKeyAndNotByItsName)
{
    installFlatpak(u"com.google.Chrome"_s);
    EXPECT_EQ(found(test::chrome), entry(otherShare, u"com.google.Chrome.desktop"_s, "flatpak"_L1));
    EXPECT_EQ(dataFolder(test::chrome), u".var/app/com.google.Chrome/config/google-chrome"_s);
    home_.installEntry(u"org.mozilla.firefox.desktop"_s);
    EXPECT_EQ(found(test::firefox), entry(share, u"org.mozilla.firefox.desktop"_s, "native"_L1));
    EXPECT_EQ(dataFolder(test::firefox), u".config/mozilla/firefox"_s);
}

TEST_F(InstallationFinderTest, TheFlatpakOfAnotherApplicationIsNoInstallation)
{
    home_.installEntry(u"com.google.Chrome.desktop"_s, "X-Flatpak=com.google.ChromeDev\n");
    home_.installEntry(u"google-chrome.desktop"_s, "X-Flatpak=com.google.Chrome\n");
    EXPECT_EQ(found(test::chrome), u"nothing"_s);
}

TEST_F(InstallationFinderTest, EdgesFlatpakIsItsBeta)
{
    installFlatpak(u"com.microsoft.Edge"_s);
    EXPECT_EQ(found(test::edge), u"nothing"_s);
    EXPECT_EQ(found(edgeBeta), entry(otherShare, u"com.microsoft.Edge.desktop"_s, "flatpak"_L1));
}

TEST_F(InstallationFinderTest, ASecondNativeEntryIsNotTheFlatpak)
{
    home_.installEntry(u"com.microsoft.Edge.desktop"_s, "NoDisplay=true\n");
    EXPECT_EQ(found(edgeBeta), u"nothing"_s);
    EXPECT_EQ(found(test::edge), entry(share, u"com.microsoft.Edge.desktop"_s, "native"_L1));
}

TEST_F(InstallationFinderTest, AFlatpakAndANativeEntryOfTheSameNameDoNotHideEachOther)
{
    home_.installEntry(u"com.google.Chrome.desktop"_s, {}, otherShare);
    installFlatpak(u"com.google.Chrome"_s, userFlatpak);
    EXPECT_EQ(found(test::chrome), entry(otherShare, u"com.google.Chrome.desktop"_s, "native"_L1));
    home_.write(u".var/app/com.google.Chrome/config/google-chrome/Default/Preferences"_s);
    EXPECT_EQ(found(test::chrome), entry(userFlatpak, u"com.google.Chrome.desktop"_s, "flatpak"_L1));
}

TEST_F(InstallationFinderTest, TheFirstPackagingWithProfilesWinsElseTheFirst)
{
    home_.installEntry(u"vivaldi-stable.desktop"_s);
    installFlatpak(vivaldi);
    installSnap(u"vivaldi"_s);
    EXPECT_EQ(dataFolder(vivaldi), u".config/vivaldi"_s);
    home_.write(u"snap/vivaldi/common/.config/vivaldi/Default/Preferences"_s);
    EXPECT_EQ(dataFolder(vivaldi), u"snap/vivaldi/common/.config/vivaldi"_s);
    EXPECT_EQ(found(vivaldi), entry(otherShare, u"vivaldi_vivaldi.desktop"_s, "snap"_L1));
    home_.write(u".var/app/com.vivaldi.Vivaldi/config/vivaldi/Default/Preferences"_s);
    EXPECT_EQ(found(vivaldi), entry(otherShare, u"com.vivaldi.Vivaldi.desktop"_s, "flatpak"_L1));
    home_.write(u".config/vivaldi/Default/Preferences"_s);
    EXPECT_EQ(found(vivaldi), entry(share, u"vivaldi-stable.desktop"_s, "native"_L1));
}

TEST_F(InstallationFinderTest, ADataFolderWithoutItsPackageDoesNotCount)
{
    installSnap(u"vivaldi"_s);
    home_.write(u".config/vivaldi/Default/Preferences"_s);
    EXPECT_EQ(dataFolder(vivaldi), u"snap/vivaldi/current/.config/vivaldi"_s);
}

TEST_F(InstallationFinderTest, SeveralNativePackagesAreChosenFromByTheSameRule)
{
    home_.installEntry(u"yandex-browser.desktop"_s);
    home_.installEntry(u"yandex-browser-beta.desktop"_s);
    EXPECT_EQ(found(yandex), entry(share, u"yandex-browser.desktop"_s, "native"_L1));
    home_.write(u".config/yandex-browser-beta/Default/Preferences"_s);
    EXPECT_EQ(found(yandex), entry(share, u"yandex-browser-beta.desktop"_s, "native"_L1));
}

TEST_F(InstallationFinderTest, AnEntryThatSnapMadeIsNoNativePackage)
{
    home_.installEntry(u"firefox.desktop"_s, "X-SnapInstanceName=firefox\n");
    EXPECT_NE(found(test::firefox), entry(share, u"firefox.desktop"_s, "native"_L1));
}

TEST_F(InstallationFinderTest, ABrowserWithChromiumsProfilesYieldsToChromium)
{
    for (const QString &bundleID : {ungoogled, iron})
        home_.installEntry(bundleID == iron ? u"iron.desktop"_s : u"ungoogled-chromium.desktop"_s);
    home_.write(u".config/chromium/Default/Preferences"_s);
    EXPECT_EQ(dataFolder(ungoogled), u".config/chromium"_s);
    EXPECT_EQ(dataFolder(iron), u".config/chromium"_s);
    home_.installEntry(u"chromium.desktop"_s);
    EXPECT_EQ(found(ungoogled), u"nothing"_s);
    EXPECT_EQ(found(iron), u"nothing"_s);
    EXPECT_EQ(dataFolder(chromium), u".config/chromium"_s);
}

TEST_F(InstallationFinderTest, ABrowserWithProfilesOfItsOwnYieldsToNoOther)
{
    home_.installEntry(u"chromium.desktop"_s);
    home_.installEntry(u"iron.desktop"_s);
    home_.write(u".config/chromium/Default/Preferences"_s);
    home_.write(u".config/iron/Default/Preferences"_s);
    EXPECT_EQ(dataFolder(iron), u".config/iron"_s);
    installFlatpak(u"io.github.ungoogled_software.ungoogled_chromium"_s);
    EXPECT_EQ(dataFolder(ungoogled), u".var/app/io.github.ungoogled_software.ungoogled_chromium/config/chromium"_s);
}

TEST_F(InstallationFinderTest, NothingIsKeptBetweenCalls)
{
    const InstallationFinder finder(home_.environment());
    EXPECT_FALSE(finder.find(test::chrome).has_value());
    const QString entry = home_.installEntry(u"google-chrome.desktop"_s);
    EXPECT_TRUE(finder.find(test::chrome).has_value());
    ASSERT_TRUE(QFile::remove(entry));
    EXPECT_FALSE(finder.find(test::chrome).has_value());
}

TEST_F(InstallationFinderTest, TheNamesLookedForComeOnceInTheirOrder)
{
    EXPECT_EQ(InstallationFinder::entryNames(test::chrome),
              (QStringList{u"google-chrome.desktop"_s, u"com.google.Chrome.desktop"_s}));
    EXPECT_EQ(InstallationFinder::entryNames(test::firefox),
              (QStringList{u"firefox.desktop"_s, u"firefox-esr.desktop"_s, u"org.mozilla.firefox.desktop"_s,
                           u"firefox_firefox.desktop"_s}));
    for (const QString &bundleID : {test::safari, u"com.epic.EpicPrivacyBrowser"_s, test::unknownBrowser, QString()})
        EXPECT_EQ(InstallationFinder::entryNames(bundleID), QStringList()) << bundleID.toStdString();
}

} // namespace
} // namespace vantrel
