#include "VantrelKit/FirefoxDiscovery.h"

#include "Tests/VantrelKit/ProfileDatabase.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr auto iniProfile = "[Profile0]\nName=From text\nIsRelative=1\nPath=Profiles/t\n";
const QString fromText = u"From text in Profiles/t"_s;

/// A data folder; profiles are told as "NAME in PATH" with the path below the folder.
class FirefoxDiscovery : public testing::Test {
protected:
    void makeDatabase(const QByteArrayList &rows) const
    {
        test::runSql(root.path(u"Profile Groups/a.sqlite"_s), test::profilesTable(rows));
    }

    void writeIni(const QByteArray &text = iniProfile) const { root.write(u"profiles.ini"_s, text); }

    [[nodiscard]] QString discovered(const QString &sqlite3 = test::sqlite3) const
    {
        return test::described(firefoxProfiles(root.path(), sqlite3)).remove(root.path(QString()));
    }

    [[nodiscard]] QString discoveredWithoutRights() const
    {
        return test::answerOfUnprivilegedProcess([this] { return discovered(); });
    }

    test::TemporaryFolder root;
};

TEST_F(FirefoxDiscovery, TheDatabaseBeatsTheTextFile)
{
    writeIni();
    makeDatabase({"('Profiles/d', 'From database')"});
    EXPECT_EQ(discovered(), u"From database in Profiles/d"_s);
}

TEST_F(FirefoxDiscovery, WithoutADatabaseTheTextFileIsRead)
{
    writeIni();
    EXPECT_EQ(discovered(), fromText);
    root.makeFolder(u"Profile Groups"_s);
    EXPECT_EQ(discovered(), fromText);
    root.write(u"Profile Groups/a.sqlite-wal"_s);
    EXPECT_EQ(discovered(), fromText);
}

TEST_F(FirefoxDiscovery, WithoutRowsTheTextFileIsRead)
{
    writeIni();
    makeDatabase({});
    EXPECT_EQ(discovered(), fromText);
}

TEST_F(FirefoxDiscovery, WithRowsThatCanNotBeReadTheTextFileIsRead)
{
    writeIni();
    makeDatabase({"('Profiles/d', 'From database')", "(null, 'Bad')"});
    EXPECT_EQ(discovered(), fromText);
}

TEST_F(FirefoxDiscovery, WithoutTheProgramTheTextFileIsRead)
{
    writeIni();
    makeDatabase({"('Profiles/d', 'From database')"});
    EXPECT_EQ(discovered(root.path(u"missing"_s)), fromText);
    EXPECT_EQ(discovered(u"/bin/false"_s), fromText);
}

TEST_F(FirefoxDiscovery, ADamagedOrLockedDatabaseLeadsToTheTextFile)
{
    writeIni();
    root.write(u"Profile Groups/a.sqlite"_s, "damaged");
    EXPECT_EQ(discovered(), fromText);
    EXPECT_TRUE(QFile::remove(root.path(u"Profile Groups/a.sqlite"_s)));
    makeDatabase({"('Profiles/d', 'From database')"});
    const test::OpenDatabase browser(root.path(u"Profile Groups/a.sqlite"_s), "begin exclusive;");
    EXPECT_EQ(discovered(), fromText);
}

TEST_F(FirefoxDiscovery, AMissingOrEmptyDataFolderHasNoProfiles)
{
    EXPECT_EQ(discovered(), u"no profiles"_s);
    EXPECT_EQ(test::described(firefoxProfiles(root.path(u"missing"_s), test::sqlite3)), u"no profiles"_s);
}

TEST_F(FirefoxDiscovery, ATextFileWithoutProfilesGivesNone)
{
    for (const QByteArray text : {"", "nonsense", "[General]\nVersion=2\n"}) {
        writeIni(text);
        EXPECT_EQ(discovered(), u"no profiles"_s);
    }
}

TEST_F(FirefoxDiscovery, TheTextFileIsUtf8)
{
    writeIni("[Profile0]\nName=caf\xC3\xA9 \xF0\x9F\x98\x80\nPath=\xD7\x90\n");
    EXPECT_EQ(discovered(), u"caf\u00e9 \U0001F600 in \u05d0"_s);
}

TEST_F(FirefoxDiscovery, ATextFileThatIsNoUtf8GivesNone)
{
    for (const QByteArray bytes : {"\xFF", "caf\xE9 x", "\xC3(", "\xED\xA0\x80", "\xC0\x80", "\xF8\x88\x80\x80\x80"}) {
        writeIni("[Profile0]\nPath=x\nName=" + bytes + "\n");
        EXPECT_EQ(discovered(), u"no profiles"_s) << bytes.toHex().toStdString();
    }
    const QString text = QString::fromLatin1(iniProfile);
    writeIni(QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2));
    EXPECT_EQ(discovered(), u"no profiles"_s);
}

TEST_F(FirefoxDiscovery, ATextFileThatEndsWithinACharacterIsNoUtf8)
{
    for (const QByteArray bytes : {"\xC3", "\xE2\x82", "\xF0\x9F\x98"}) {
        writeIni("[Profile0]\nName=A\nPath=x\n" + bytes);
        EXPECT_EQ(discovered(), u"no profiles"_s) << bytes.toHex().toStdString();
    }
}

TEST_F(FirefoxDiscovery, AFolderOrAPipeInThePlaceOfTheTextFileGivesNone)
{
    root.makeFolder(u"profiles.ini"_s);
    EXPECT_EQ(discovered(), u"no profiles"_s);
    const test::TemporaryFolder other;
    other.makePipe(u"profiles.ini"_s);
    const QString answer = test::answerOfUnprivilegedProcess(
        [&other] { return test::described(firefoxProfiles(other.path(), test::sqlite3)); });
    EXPECT_EQ(answer, u"no profiles"_s);
}

TEST_F(FirefoxDiscovery, ADataFolderThatMayNotBeListedIsDenied)
{
    writeIni();
    EXPECT_EQ(discoveredWithoutRights(), fromText);
    const test::ClosedPath guard(root.path(), 0311);
    EXPECT_EQ(discoveredWithoutRights(), u"accessDenied "_s + root.path());
}

TEST_F(FirefoxDiscovery, AFolderOfDatabasesThatMayNotBeListedIsDenied)
{
    writeIni();
    makeDatabase({"('Profiles/d', 'From database')"});
    const test::ClosedPath guard(root.path(u"Profile Groups"_s));
    EXPECT_EQ(discoveredWithoutRights(), u"accessDenied Profile Groups"_s);
}

TEST_F(FirefoxDiscovery, ATextFileThatMayNotBeReadGivesNone)
{
    writeIni();
    const test::ClosedPath guard(root.path(u"profiles.ini"_s));
    EXPECT_EQ(discoveredWithoutRights(), u"no profiles"_s);
}

TEST_F(FirefoxDiscovery, ADatabaseThatMayNotBeReadLeadsToTheTextFile)
{
    writeIni();
    makeDatabase({"('Profiles/d', 'From database')"});
    const test::ClosedPath guard(root.path(u"Profile Groups/a.sqlite"_s));
    EXPECT_EQ(discoveredWithoutRights(), fromText);
}

TEST_F(FirefoxDiscovery, AFileInThePlaceOfAFolderFails)
{
    const QString file = root.write(u"file"_s);
    EXPECT_EQ(firefoxProfiles(file, test::sqlite3).error(),
              ProfileDiscoveryError::readFailed(file, u"Not a directory"_s));
    writeIni();
    root.write(u"Profile Groups"_s);
    EXPECT_EQ(discovered(), u"readFailed Profile Groups"_s);
}

TEST_F(FirefoxDiscovery, TheDiskIsReadAfreshEachTime)
{
    writeIni();
    EXPECT_EQ(discovered(), fromText);
    makeDatabase({"('Profiles/d', 'From database')"});
    EXPECT_EQ(discovered(), u"From database in Profiles/d"_s);
}

} // namespace
} // namespace vantrel
