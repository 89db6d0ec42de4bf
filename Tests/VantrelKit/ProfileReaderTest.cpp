#include "VantrelKit/ProfileReader.h"

#include "Tests/VantrelKit/Pictures.h"
#include "Tests/VantrelKit/ProfileDatabase.h"
#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"
#include "VantrelKit/AvatarThumbnail.h"
#include "VantrelKit/KnownBrowsers.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A root with one profile each of Chrome, Edge, Firefox and Zen.
class ProfileReading : public testing::Test {
protected:
    ProfileReading()
    {
        root.makeFolder(u"Google/Chrome/Default"_s);
        root.makeFolder(u"Microsoft Edge/Profile 1"_s);
        root.write(u"Firefox/profiles.ini"_s, "[Profile0]\nName=Fox\nPath=Profiles/f\n");
        root.write(u"zen/profiles.ini"_s, "[Profile0]\nName=Calm\nPath=Profiles/z\n");
        // Nothing reads these: Safari has no data folder, and nobody knows the other.
        root.makeFolder(u"com.apple.Safari/Default"_s);
        root.makeFolder(u"org.example.browser/Default"_s);
    }

    [[nodiscard]] ProfileReader reader() const
    {
        ProfileReader reader;
        reader.appSupportRoot = root.path();
        return reader;
    }

    [[nodiscard]] QString discovered(const QString &bundleID) const
    {
        return test::described(reader().discoverProfiles(bundleID)).remove(root.path(QString()));
    }

    test::TemporaryFolder root;
};

TEST_F(ProfileReading, EachBrowserIsReadInTheWayOfItsFamily)
{
    EXPECT_EQ(discovered(test::chrome), u"Default in Default"_s);
    EXPECT_EQ(discovered(test::edge), u"Profile 1 in Profile 1"_s);
    EXPECT_EQ(discovered(test::firefox), u"Fox in Firefox/Profiles/f"_s);
    EXPECT_EQ(discovered(test::zen), u"Calm in zen/Profiles/z"_s);
}

TEST_F(ProfileReading, TheMozillaEditionsListTheSameProfiles)
{
    for (const QString &edition : {u"org.mozilla.firefoxbeta"_s, u"org.mozilla.firefoxdeveloperedition"_s,
                                   u"org.mozilla.aurora"_s, u"org.mozilla.nightly"_s})
        EXPECT_EQ(discovered(edition), discovered(test::firefox));
}

TEST_F(ProfileReading, SafariAndUnknownBrowsersHaveNoProfiles)
{
    for (const QString &browser :
         {test::safari, u"com.apple.SafariTechnologyPreview"_s, test::unknownBrowser, QString()}) {
        EXPECT_EQ(discovered(browser), u"no profiles"_s);
        EXPECT_EQ(test::described(reader().discoverProfiles(browser, root.path(u"Google/Chrome"_s))), u"no profiles"_s);
    }
}

TEST_F(ProfileReading, ABrowserThatWasNeverStartedHasNoProfiles)
{
    EXPECT_EQ(discovered(test::brave), u"no profiles"_s);
}

TEST_F(ProfileReading, TheDataFolderIsTheCataloguesBelowTheRoot)
{
    ProfileReader reader;
    for (const QString &place : {u"/root folder"_s, u"/root folder/"_s}) {
        reader.appSupportRoot = place;
        for (const QString &browser : KnownBrowsers::all()) {
            const auto folder = KnownBrowsers::dataFolder(browser);
            EXPECT_EQ(reader.dataFolder(browser), folder ? std::optional(u"/root folder/"_s + *folder) : std::nullopt);
        }
        EXPECT_EQ(reader.dataFolder(test::safari), std::nullopt);
        EXPECT_EQ(reader.dataFolder(test::unknownBrowser), std::nullopt);
    }
}

TEST_F(ProfileReading, ADataFolderMayBeAnywhere)
{
    const test::TemporaryFolder elsewhere;
    elsewhere.makeFolder(u"Profile 7"_s);
    EXPECT_EQ(test::described(reader().discoverProfiles(test::chrome, elsewhere.path())), u"Profile 7 in Profile 7"_s);
    elsewhere.write(u"profiles.ini"_s, "[Profile0]\nPath=x\n");
    EXPECT_EQ(test::described(reader().discoverProfiles(test::zen, elsewhere.path())),
              u"x in "_s + elsewhere.path(u"x"_s));
}

TEST_F(ProfileReading, PicturesAreMadeByTheReaderThatIsGiven)
{
    root.write(u"Google/Chrome/Default/Account Avatar"_s, test::picture({512, 256}, "PNG"));
    ProfileReader withPictures = reader();
    withPictures.readPicture = avatarThumbnailPNG;
    const auto profiles = withPictures.discoverProfiles(test::chrome);
    ASSERT_TRUE(profiles && profiles->size() == 1);
    EXPECT_EQ(test::sizeOf(profiles->first().avatarPNG), QSize(128, 64));
    EXPECT_EQ(reader().discoverProfiles(test::chrome)->first().avatarPNG, std::nullopt);
}

TEST_F(ProfileReading, TheSystemsSqliteReadsTheDatabaseUnlessAnotherIsGiven)
{
    test::runSql(root.path(u"Firefox/Profile Groups/a.sqlite"_s), test::profilesTable({"('d', 'From database')"}));
    EXPECT_EQ(discovered(test::firefox), u"From database in Firefox/d"_s);
    ProfileReader other = reader();
    other.sqlite3 = u"/bin/false"_s;
    EXPECT_EQ(other.discoverProfiles(test::firefox)->first().name, u"Fox"_s);
}

TEST_F(ProfileReading, AnErrorNamesTheFolder)
{
    root.write(u"Vivaldi"_s);
    EXPECT_EQ(discovered(u"com.vivaldi.Vivaldi"_s), u"readFailed Vivaldi"_s);
    const test::ClosedPath chromeFolder(root.path(u"Google/Chrome"_s));
    const test::ClosedPath firefoxFolder(root.path(u"Firefox"_s));
    const QString answer = test::answerOfUnprivilegedProcess([this]() -> QString {
        return discovered(test::chrome) + u", "_s + discovered(test::firefox) + u", "_s + discovered(test::zen);
    });
    EXPECT_EQ(answer, u"accessDenied Google/Chrome, accessDenied Firefox, Calm in zen/Profiles/z"_s);
}

TEST_F(ProfileReading, ManyThreadsMayReadAtOnce)
{
    test::runSql(root.path(u"Firefox/Profile Groups/a.sqlite"_s), test::profilesTable({"('d', 'From database')"}));
    const QStringList browsers{test::chrome, test::edge, test::firefox, test::zen};
    QStringList expected;
    for (const QString &browser : browsers)
        expected.append(discovered(browser));
    std::vector<QStringList> found(4);
    std::vector<std::thread> threads;
    for (QStringList &results : found) {
        threads.emplace_back([this, &results, &browsers] {
            for (const QString &browser : browsers)
                results.append(discovered(browser));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (const QStringList &results : found)
        EXPECT_EQ(results, expected);
}

} // namespace
} // namespace vantrel
