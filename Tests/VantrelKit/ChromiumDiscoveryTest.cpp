#include "VantrelKit/ChromiumDiscovery.h"

#include "Tests/VantrelKit/Pictures.h"
#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"
#include "VantrelKit/AvatarThumbnail.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr qint64 last = std::numeric_limits<qint64>::max();

/// "NAME in FOLDER; …".
QString discovered(const QString &dataFolder)
{
    return test::described(chromiumProfiles(dataFolder, {}));
}

QString discoveredWithoutRights(const QString &dataFolder)
{
    return test::answerOfUnprivilegedProcess([&dataFolder] { return discovered(dataFolder); });
}

QStringList foldersOf(const QString &dataFolder)
{
    const auto profiles = chromiumProfiles(dataFolder, {});
    EXPECT_TRUE(profiles);
    QStringList folders;
    for (const DiscoveredProfile &profile : profiles.value_or(QList<DiscoveredProfile>()))
        folders.append(profile.folder);
    return folders;
}

QList<FolderEntry> entries(const QStringList &names, bool areDirectories = true)
{
    QList<FolderEntry> result;
    for (const QString &name : names)
        result.append({name, u"/data/"_s + name, areDirectories});
    return result;
}

QStringList profileFolders(const QStringList &names)
{
    QStringList result;
    for (const FolderEntry &folder : chromiumProfileFolders(entries(names)))
        result.append(folder.name);
    return result;
}

void writeNames(const test::TemporaryFolder &folder, const QByteArray &cache)
{
    folder.write(u"Local State"_s, R"({"profile": {"info_cache": )" + cache + "}}");
}

TEST(ChromiumDiscovery, DefaultComesFirstAndTheOthersByTheirNumber)
{
    const test::TemporaryFolder folder;
    for (const QString &name :
         {u"Profile 10"_s, u"Profile 2"_s, u"Guest Profile"_s, u"Profile 1"_s, u"System Profile"_s, u"Default"_s,
          u"Profile Work"_s, u"Profile"_s, u"Crashpad"_s, u".Default"_s})
        folder.makeFolder(name);
    folder.write(u"Profile 3"_s);
    EXPECT_EQ(foldersOf(folder.path()),
              QStringList({u"Default"_s, u"Profile 1"_s, u"Profile 2"_s, u"Profile 10"_s, u"Profile Work"_s}));
}

TEST(ChromiumDiscovery, OnlyDefaultAndProfilesWithABlankAreProfiles)
{
    EXPECT_EQ(
        profileFolders({u"Profile 1"_s, u"Profile "_s, u"Profile  2"_s, u"Profile -"_s, u"Profile 1 copy"_s}).size(),
        5);
    EXPECT_EQ(profileFolders({u"Profile"_s, u"Profile1"_s, u"Profiles 1"_s, u"profile 1"_s, u"PROFILE 1"_s,
                              u"default"_s, u"Default "_s, u"Default 1"_s, u" Default"_s, u"DefaultX"_s,
                              u"Guest Profile"_s, u"System Profile"_s, u"My Profile 1"_s, u"Profile\t1"_s, u""_s}),
              QStringList());
}

TEST(ChromiumDiscovery, OnlyFoldersAreProfiles)
{
    EXPECT_EQ(chromiumProfileFolders(entries({u"Default"_s, u"Profile 1"_s}, false)), QList<FolderEntry>());
    EXPECT_EQ(chromiumProfileFolders(entries({u"Default"_s})), entries({u"Default"_s}));
    EXPECT_EQ(chromiumProfileFolders({}), QList<FolderEntry>());
}

TEST(ChromiumDiscovery, TheRankIsTheNumberPlusOne)
{
    const std::vector<std::pair<QString, qint64>> rows{
        {u"Default"_s, 0},
        {u"Profile 0"_s, 1},
        {u"Profile 1"_s, 2},
        {u"Profile 01"_s, 2},
        {u"Profile +1"_s, 2},
        {u"Profile -1"_s, 0},
        {u"Profile -2"_s, -1},
        {u"Profile 10"_s, 11},
        {u"Profile Work"_s, last},
        {u"Profile "_s, last},
        {u"Profile 1 copy"_s, last},
        {u"Profile  1"_s, last},
        {u"Profile 1.5"_s, last},
        {u"Profile -"_s, last},
        {u"Profile \u0661"_s, last},
        {u"Profile 0x1"_s, last},
        {u"Profile 9223372036854775806"_s, last},
        {u"Profile 9223372036854775807"_s, last},
        {u"Profile 9223372036854775808"_s, last},
        {u"Profile 9223372036854775805"_s, last - 1},
        {u"Profile -9223372036854775808"_s, std::numeric_limits<qint64>::min() + 1},
    };
    for (const auto &[name, rank] : rows)
        EXPECT_EQ(folderRank(name), rank) << name.toStdString();
}

TEST(ChromiumDiscovery, FoldersOfOneRankKeepTheOrderOfTheListing)
{
    EXPECT_EQ(profileFolders({u"Profile 1"_s, u"Profile 01"_s, u"Default"_s}),
              QStringList({u"Default"_s, u"Profile 1"_s, u"Profile 01"_s}));
    EXPECT_EQ(profileFolders({u"Profile 01"_s, u"Profile 1"_s}), QStringList({u"Profile 01"_s, u"Profile 1"_s}));
    EXPECT_EQ(profileFolders({u"Profile -1"_s, u"Default"_s}), QStringList({u"Profile -1"_s, u"Default"_s}));
    EXPECT_EQ(profileFolders({u"Default"_s, u"Profile -1"_s}), QStringList({u"Default"_s, u"Profile -1"_s}));
    QStringList many;
    for (int number = 0; number < 200; ++number)
        many.append(u"Profile x%1"_s.arg(199 - number));
    EXPECT_EQ(profileFolders(many), many);
}

TEST(ChromiumDiscovery, TheNameIsThatOfTheInfoCache)
{
    const test::TemporaryFolder folder;
    folder.write(u"Profile 1/Preferences"_s, R"({"profile": {"name": "From Preferences"}})");
    writeNames(folder, R"({"Profile 1": {"name": "Work"}, "Profile 9": {"name": "Not there"}})");
    EXPECT_EQ(discovered(folder.path()), u"Work in Profile 1"_s);
}

TEST(ChromiumDiscovery, TheNameIsThatOfThePreferencesWhereTheCacheHasNone)
{
    for (const QByteArray cache : {"{}", R"({"Profile 2": {"name": "x"}})", R"({"Profile 1": {}})",
                                   R"({"Profile 1": {"name": ""}})", R"({"Profile 1": {"name": null}})",
                                   R"({"Profile 1": {"name": 5}})", "5", R"({"profile 1": {"name": "x"}})"}) {
        const test::TemporaryFolder folder;
        folder.write(u"Profile 1/Preferences"_s, R"({"profile": {"name": "From Preferences"}})");
        writeNames(folder, cache);
        EXPECT_EQ(discovered(folder.path()), u"From Preferences in Profile 1"_s) << cache.toStdString();
    }
}

TEST(ChromiumDiscovery, TheNameIsTheFoldersWhereNothingNamesIt)
{
    for (const QByteArray preferences : {"", "{}", "nonsense", R"({"profile": {}})", R"({"profile": {"name": ""}})",
                                         R"({"profile": {"name": null}})", R"({"profile": {"name": 5}})"}) {
        const test::TemporaryFolder folder;
        folder.write(u"Profile 1/Preferences"_s, preferences);
        EXPECT_EQ(discovered(folder.path()), u"Profile 1 in Profile 1"_s) << preferences.toStdString();
    }
}

TEST(ChromiumDiscovery, ADamagedLocalStateCostsNamesOnly)
{
    for (const QByteArray localState : {"", "{", "[]", "null", "{\"profile\": []}", "\xff"}) {
        const test::TemporaryFolder folder;
        folder.makeFolder(u"Profile 1"_s);
        folder.write(u"Default/Preferences"_s, R"({"profile": {"name": "Home"}})");
        folder.write(u"Local State"_s, localState);
        EXPECT_EQ(discovered(folder.path()), u"Home in Default; Profile 1 in Profile 1"_s) << localState.toStdString();
    }
}

TEST(ChromiumDiscovery, AFolderInThePlaceOfAFileCostsNamesOnly)
{
    const test::TemporaryFolder folder;
    folder.makeFolder(u"Local State"_s);
    folder.makeFolder(u"Default/Preferences"_s);
    EXPECT_EQ(discovered(folder.path()), u"Default in Default"_s);
}

TEST(ChromiumDiscovery, PipesInThePlaceOfFilesDoNotBlock)
{
    const test::TemporaryFolder folder;
    folder.makePipe(u"Local State"_s);
    folder.makePipe(u"Default/Preferences"_s);
    folder.makePipe(u"Default/Account Avatar"_s);
    const QString answer = test::answerOfUnprivilegedProcess(
        [&folder] { return test::described(chromiumProfiles(folder.path(), avatarThumbnailPNG)); });
    EXPECT_EQ(answer, u"Default in Default"_s);
}

TEST(ChromiumDiscovery, AnyNameIsShownAsItIs)
{
    for (const QString &name : test::oddTexts()) {
        const test::TemporaryFolder folder;
        folder.makeFolder(u"Default"_s);
        const QJsonObject cache{{u"Default"_s, QJsonObject{{u"name"_s, name}}}};
        writeNames(folder, QJsonDocument(cache).toJson());
        EXPECT_EQ(discovered(folder.path()), QString(name + u" in Default"_s));
    }
}

TEST(ChromiumDiscovery, AFolderThatIsALinkIsAProfile)
{
    const test::TemporaryFolder folder;
    folder.link(u"data/Default"_s, folder.makeFolder(u"elsewhere"_s));
    folder.link(u"data/Profile 1"_s, folder.write(u"file"_s));
    EXPECT_EQ(discovered(folder.path(u"data"_s)), u"Default in Default"_s);
}

TEST(ChromiumDiscovery, AMissingOrEmptyDataFolderHasNoProfiles)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(discovered(folder.path(u"missing"_s)), u"no profiles"_s);
    EXPECT_EQ(discovered(folder.path()), u"no profiles"_s);
}

TEST(ChromiumDiscovery, ADataFolderThatMayNotBeListedIsDenied)
{
    const test::TemporaryFolder folder;
    const QString data = folder.makeFolder(u"data"_s);
    folder.makeFolder(u"data/Default"_s);
    EXPECT_EQ(discoveredWithoutRights(data), u"Default in Default"_s);
    const test::ClosedPath guard(data);
    EXPECT_EQ(discoveredWithoutRights(data), u"accessDenied "_s + data);
}

TEST(ChromiumDiscovery, AFileInThePlaceOfTheDataFolderFails)
{
    const test::TemporaryFolder folder;
    const QString file = folder.write(u"data"_s);
    EXPECT_EQ(chromiumProfiles(file, {}).error(), ProfileDiscoveryError::readFailed(file, u"Not a directory"_s));
}

TEST(ChromiumDiscovery, FilesThatMayNotBeReadCostNamesOnly)
{
    const test::TemporaryFolder folder;
    folder.write(u"Profile 1/Preferences"_s, R"({"profile": {"name": "Secret"}})");
    folder.write(u"Profile 2/Preferences"_s, R"({"profile": {"name": "Open"}})");
    folder.write(u"Profile 3/Preferences"_s, R"({"profile": {"name": "Secret"}})");
    writeNames(folder, R"({"Profile 1": {"name": "Secret"}})");
    const test::ClosedPath localState(folder.path(u"Local State"_s));
    const test::ClosedPath preferences(folder.path(u"Profile 1/Preferences"_s));
    const test::ClosedPath profile(folder.path(u"Profile 3"_s));
    EXPECT_EQ(discoveredWithoutRights(folder.path()),
              u"Profile 1 in Profile 1; Open in Profile 2; Profile 3 in Profile 3"_s);
}

TEST(ChromiumDiscovery, EachProfileHasItsOwnPicture)
{
    const test::TemporaryFolder folder;
    folder.write(u"Avatars/me.png"_s, test::picture({512, 256}, "PNG"));
    folder.write(u"Profile 1/Avatar Icons/26"_s, test::picture({100, 50}, "PNG"));
    folder.write(u"Profile 2/Account Avatar"_s, test::picture({30, 20}, "JPG"));
    folder.write(u"Profile 3/Avatar Icons/26"_s, "damaged");
    folder.makeFolder(u"Profile 4"_s);
    folder.makeFolder(u"Profile 5/Avatars"_s);
    writeNames(folder, R"({"Profile 1": {"avatar_icon": "chrome://theme/IDR_PROFILE_AVATAR_26"},
                           "Profile 2": {"avatar_icon": "chrome://theme/IDR_PROFILE_AVATAR_26"},
                           "Profile 3": {"avatar_icon": "chrome://theme/IDR_PROFILE_AVATAR_26"},
                           "Profile 5": {"avatar_icon": "Avatars/me.png"}})");
    const auto profiles = chromiumProfiles(folder.path(), avatarThumbnailPNG);
    ASSERT_TRUE(profiles);
    ASSERT_EQ(profiles->size(), 5);
    const QList<QSize> sizes{{100, 50}, {30, 20}, {}, {}, {128, 64}};
    for (qsizetype row = 0; row < 5; ++row)
        EXPECT_EQ(test::sizeOf((*profiles)[row].avatarPNG), sizes[row]) << row;
}

TEST(ChromiumDiscovery, WithoutAPictureReaderThereAreNoPictures)
{
    const test::TemporaryFolder folder;
    folder.write(u"Default/Account Avatar"_s, test::picture({30, 20}, "PNG"));
    const auto profiles = chromiumProfiles(folder.path(), {});
    ASSERT_TRUE(profiles);
    EXPECT_EQ(*profiles, QList<DiscoveredProfile>({{u"Default"_s, u"Default"_s}}));
}

/// What is found where the data folder is itself the profile.
QString rootProfile(const QString &dataFolder)
{
    return test::described(chromiumRootProfile(dataFolder, {}));
}

TEST(ChromiumDiscovery, ADataFolderThatIsItselfTheProfileIsNamedByItsPreferences)
{
    const test::TemporaryFolder folder;
    folder.write(u"data/Preferences"_s, R"({"profile": {"name": "Me"}})");
    folder.makeFolder(u"data/Profile 1"_s);
    EXPECT_EQ(rootProfile(folder.path(u"data"_s)), u"Me in ."_s);
    folder.write(u"data/Preferences"_s, "damaged");
    EXPECT_EQ(rootProfile(folder.path(u"data"_s)), u"data in ."_s);
    EXPECT_EQ(rootProfile(folder.path(u"data/"_s)), u"data in ."_s);
}

TEST(ChromiumDiscovery, ADataFolderThatIsItselfTheProfileHasItsPicture)
{
    const test::TemporaryFolder folder;
    folder.write(u"Account Avatar"_s, test::picture({512, 256}, "PNG"));
    const auto profiles = chromiumRootProfile(folder.path(), avatarThumbnailPNG);
    ASSERT_TRUE(profiles && profiles->size() == 1);
    EXPECT_EQ(test::sizeOf(profiles->first().avatarPNG), QSize(128, 64));
}

TEST(ChromiumDiscovery, ADataFolderThatIsItselfTheProfileMayBeMissingOrClosed)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(rootProfile(folder.path(u"missing"_s)), u"no profiles"_s);
    EXPECT_EQ(rootProfile(folder.write(u"file"_s)), u"readFailed "_s + folder.path(u"file"_s));
    const QString closed = folder.makeFolder(u"closed"_s);
    const test::ClosedPath guard(closed);
    EXPECT_EQ(test::answerOfUnprivilegedProcess([&closed] { return rootProfile(closed); }),
              u"accessDenied "_s + closed);
}

TEST(ChromiumDiscovery, TheDiskIsReadAfreshEachTime)
{
    const test::TemporaryFolder folder;
    folder.makeFolder(u"Default"_s);
    EXPECT_EQ(discovered(folder.path()), u"Default in Default"_s);
    folder.makeFolder(u"Profile 1"_s);
    writeNames(folder, R"({"Default": {"name": "Home"}})");
    EXPECT_EQ(discovered(folder.path()), u"Home in Default; Profile 1 in Profile 1"_s);
}

} // namespace
} // namespace vantrel
