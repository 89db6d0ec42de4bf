#include "VantrelKit/ProfileGroups.h"

#include "Tests/VantrelKit/ProfileDatabase.h"
#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A Firefox data folder; profiles are told as "NAME in PATH" with the path below the folder.
class ProfileGroups : public testing::Test {
protected:
    void makeDatabase(const QString &name, const QByteArrayList &rows) const
    {
        test::runSql(database(name), test::profilesTable(rows));
    }

    [[nodiscard]] QString database(const QString &name) const { return root.path(u"Profile Groups/"_s + name); }

    [[nodiscard]] QString rows(const QString &sqlite3 = test::sqlite3) const
    {
        return test::described(profileGroupRows(root.path(), sqlite3)).remove(root.path(QString()));
    }

    /// The same, seen by a process that may do no more than anyone.
    [[nodiscard]] QString rowsWithoutRights() const
    {
        return test::answerOfUnprivilegedProcess([this] { return rows(); });
    }

    test::TemporaryFolder root;
};

TEST_F(ProfileGroups, TheRowsComeInTheDatabasesOrder)
{
    makeDatabase(u"a.sqlite"_s, {"('Profiles/z', 'Zulu')", "('Profiles/a', 'Alpha')", "('Profiles/m', 'Mike')"});
    EXPECT_EQ(rows(), u"Zulu in Profiles/z; Alpha in Profiles/a; Mike in Profiles/m"_s);
}

TEST_F(ProfileGroups, ThereAreNoPictures)
{
    makeDatabase(u"a.sqlite"_s, {"('Profiles/a', 'Alpha')"});
    const auto profiles = profileGroupRows(root.path(), test::sqlite3);
    ASSERT_TRUE(profiles);
    EXPECT_EQ(*profiles, QList<DiscoveredProfile>({{u"Alpha"_s, root.path(u"Profiles/a"_s)}}));
}

TEST_F(ProfileGroups, ARowWithoutANameIsNamedByItsPath)
{
    makeDatabase(u"a.sqlite"_s, {"('Profiles/q1.Personal', null)", "('Profiles/q2.Work', '')", "('q3', null)",
                                 "('Profiles/q4.Slash/', null)"});
    EXPECT_EQ(rows(), u"q1.Personal in Profiles/q1.Personal; q2.Work in Profiles/q2.Work; q3 in q3; "
                      "q4.Slash in Profiles/q4.Slash"_s);
}

TEST_F(ProfileGroups, AnyNameIsShownAsItIs)
{
    QByteArrayList values;
    QStringList expected;
    for (const QString &text : test::oddTexts()) {
        // A zero ends a text for the program.
        if (text.contains(QChar(0)))
            continue;
        values.append("('p', cast(x'" + text.toUtf8().toHex() + "' as text))");
        expected.append(text + u" in p"_s);
    }
    makeDatabase(u"a.sqlite"_s, values);
    EXPECT_EQ(rows(), expected.join(u"; "_s));
}

TEST_F(ProfileGroups, TheDatabaseWithTheSmallestNameIsRead)
{
    makeDatabase(u"b.sqlite"_s, {"('b', 'From b')"});
    makeDatabase(u"a.sqlite"_s, {"('a', 'From a')"});
    makeDatabase(u"c.sqlite"_s, {"('c', 'From c')"});
    EXPECT_EQ(rows(), u"From a in a"_s);
    makeDatabase(u"Z.sqlite"_s, {"('Z', 'From Z')"});
    EXPECT_EQ(rows(), u"From Z in Z"_s);
}

TEST_F(ProfileGroups, OnlyTheFirstDatabaseIsReadEvenWhenItIsEmptyOrDamaged)
{
    makeDatabase(u"b.sqlite"_s, {"('b', 'From b')"});
    makeDatabase(u"a.sqlite"_s, {});
    EXPECT_EQ(rows(), u"no profiles"_s);
    root.write(u"Profile Groups/0.sqlite"_s, "damaged");
    EXPECT_EQ(rows(), u"no profiles"_s);
}

TEST_F(ProfileGroups, TheExtensionCountsWithoutRegardToCase)
{
    makeDatabase(u"x.SQLITE"_s, {"('a', 'Upper')"});
    EXPECT_EQ(rows(), u"Upper in a"_s);
    makeDatabase(u"1.Sqlite"_s, {"('a', 'Mixed')"});
    EXPECT_EQ(rows(), u"Mixed in a"_s);
}

TEST_F(ProfileGroups, FilesWithAnotherExtensionAreNoDatabases)
{
    for (const QString &name : {u"a.sqlite-wal"_s, u"a.sqlite-shm"_s, u"a.sqlite3"_s, u"a.sqlite.bak"_s, u"a.db"_s,
                                u"sqlite"_s, u"a_sqlite"_s, u".sqlite"_s, u"a.sqlite "_s})
        makeDatabase(name, {"('a', 'Wrong')"});
    EXPECT_EQ(rows(), u"no profiles"_s);
    makeDatabase(u"x.y.sqlite"_s, {"('a', 'Right')"});
    EXPECT_EQ(rows(), u"Right in a"_s);
}

TEST_F(ProfileGroups, AnyFileNameIsRead)
{
    for (const QString &name :
         {u"'; drop table Profiles; --.sqlite"_s, u"a b & $(id) %20.sqlite"_s, u"-readonly.sqlite"_s,
          u"\u05d0 \U0001F600\n.sqlite"_s, u"file:x?mode=memory.sqlite"_s}) {
        const test::TemporaryFolder folder;
        const QString path = folder.path(u"Profile Groups/"_s + name);
        test::runSql(folder.path(u"plain"_s), test::profilesTable({"('a', 'Odd')"}));
        folder.write(u"Profile Groups/"_s + name, folder.read(u"plain"_s));
        EXPECT_EQ(test::described(profileGroupRows(folder.path(), test::sqlite3)), u"Odd in "_s + folder.path(u"a"_s))
            << name.toStdString();
    }
}

TEST_F(ProfileGroups, AMissingOrEmptyFolderHasNoRows)
{
    EXPECT_EQ(rows(), u"no profiles"_s);
    root.makeFolder(u"Profile Groups"_s);
    EXPECT_EQ(rows(), u"no profiles"_s);
    EXPECT_EQ(test::described(profileGroupRows(root.path(u"missing"_s), test::sqlite3)), u"no profiles"_s);
}

TEST_F(ProfileGroups, AFileInThePlaceOfTheFolderFails)
{
    root.write(u"Profile Groups"_s);
    EXPECT_EQ(rows(), u"readFailed Profile Groups"_s);
}

TEST_F(ProfileGroups, AFolderThatMayNotBeListedIsDenied)
{
    makeDatabase(u"a.sqlite"_s, {"('a', 'A')"});
    EXPECT_EQ(rowsWithoutRights(), u"A in a"_s);
    const test::ClosedPath guard(root.path(u"Profile Groups"_s));
    EXPECT_EQ(rowsWithoutRights(), u"accessDenied Profile Groups"_s);
}

TEST_F(ProfileGroups, ADatabaseThatMayNotBeReadHasNoRows)
{
    makeDatabase(u"a.sqlite"_s, {"('a', 'A')"});
    const test::ClosedPath guard(database(u"a.sqlite"_s));
    EXPECT_EQ(rowsWithoutRights(), u"no profiles"_s);
}

TEST_F(ProfileGroups, ADatabaseWithAnotherShapeHasNoRows)
{
    test::runSql(database(u"a.sqlite"_s), "create table Other (path, name); insert into Other values ('a', 'A');");
    EXPECT_EQ(rows(), u"no profiles"_s);
    test::runSql(database(u"0.sqlite"_s), "create table Profiles (path); insert into Profiles values ('a');");
    EXPECT_EQ(rows(), u"no profiles"_s);
}

TEST_F(ProfileGroups, OneRowOfAnotherShapeMakesAllUnreadable)
{
    for (const QByteArray row : {"(null, 'A')", "(5, 'A')", "('a', 5)", "('a', 1.5)"}) {
        const test::TemporaryFolder folder;
        test::runSql(folder.path(u"Profile Groups/a.sqlite"_s), test::profilesTable({"('b', 'B')", row}));
        EXPECT_EQ(test::described(profileGroupRows(folder.path(), test::sqlite3)), u"no profiles"_s)
            << row.toStdString();
    }
}

TEST_F(ProfileGroups, ADamagedDatabaseHasNoRows)
{
    for (const QByteArray &content : QByteArrayList{QByteArray(), QByteArray("damaged"), QByteArray(5000, '\0'),
                                                    QByteArray("SQLite format 3\0", 16) + QByteArray(5000, 'x')}) {
        root.write(u"Profile Groups/a.sqlite"_s, content);
        EXPECT_EQ(rows(), u"no profiles"_s);
    }
}

TEST_F(ProfileGroups, ADatabaseCutOffHasNoRows)
{
    QByteArrayList values;
    for (int number = 0; number < 1000; ++number)
        values.append("('Profiles/p" + QByteArray::number(number) + "', 'A name that takes some room')");
    makeDatabase(u"a.sqlite"_s, values);
    const QByteArray whole = root.read(u"Profile Groups/a.sqlite"_s);
    root.write(u"Profile Groups/a.sqlite"_s, whole.first(whole.size() / 2));
    EXPECT_EQ(rows(), u"no profiles"_s);
}

TEST_F(ProfileGroups, AFolderNamedAsADatabaseHasNoRows)
{
    root.makeFolder(u"Profile Groups/a.sqlite"_s);
    EXPECT_EQ(rows(), u"no profiles"_s);
}

TEST_F(ProfileGroups, ALockedDatabaseHasNoRowsUntilItIsFree)
{
    makeDatabase(u"a.sqlite"_s, {"('a', 'A')"});
    {
        const test::OpenDatabase browser(database(u"a.sqlite"_s), "begin exclusive;");
        EXPECT_EQ(rows(), u"no profiles"_s);
    }
    EXPECT_EQ(rows(), u"A in a"_s);
}

TEST_F(ProfileGroups, ADatabaseInUseIsReadAsItWasLastSaved)
{
    test::runSql(database(u"a.sqlite"_s), "pragma journal_mode = wal;" + test::profilesTable({"('a', 'A')"}));
    const test::OpenDatabase browser(database(u"a.sqlite"_s),
                                     "insert into Profiles (path, name) values ('b', 'B'); begin; "
                                     "insert into Profiles (path, name) values ('c', 'C');");
    EXPECT_EQ(rows(), u"A in a; B in b"_s);
}

TEST_F(ProfileGroups, ReadingChangesNothing)
{
    makeDatabase(u"a.sqlite"_s, {"('a', 'A')"});
    const QByteArray before = root.read(u"Profile Groups/a.sqlite"_s);
    EXPECT_EQ(rows(), u"A in a"_s);
    EXPECT_EQ(root.read(u"Profile Groups/a.sqlite"_s), before);
    EXPECT_EQ(QDir(root.path(u"Profile Groups"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

TEST_F(ProfileGroups, TenThousandRowsAreRead)
{
    QByteArrayList values;
    for (int number = 0; number < 10000; ++number)
        values.append("('p" + QByteArray::number(number) + "', 'n" + QByteArray::number(number) + "')");
    makeDatabase(u"a.sqlite"_s, values);
    const auto profiles = profileGroupRows(root.path(), test::sqlite3);
    ASSERT_TRUE(profiles);
    ASSERT_EQ(profiles->size(), 10000);
    EXPECT_EQ(profiles->last(), (DiscoveredProfile{u"n9999"_s, root.path(u"p9999"_s)}));
}

} // namespace
} // namespace vantrel
