#include "Tests/VantrelKit/ProfileDatabase.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr auto missing = "/usr/bin/sqlite3 can't be run. Is the package sqlite3 installed?";

} // namespace

void runSql(const QString &database, const QByteArray &statements)
{
    EXPECT_TRUE(QDir().mkpath(QFileInfo(database).path()));
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(sqlite3, {u"-bail"_s, database});
    ASSERT_TRUE(process.waitForStarted()) << missing;
    process.write(statements);
    process.closeWriteChannel();
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
}

OpenDatabase::OpenDatabase(const QString &database, const QByteArray &statements)
{
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start(sqlite3, {u"-bail"_s, database});
    EXPECT_TRUE(process_.waitForStarted()) << missing;
    process_.write(statements + "\n.print ready\n");
    while (!process_.peek(1000).contains("ready") && process_.waitForReadyRead()) {
    }
    EXPECT_TRUE(process_.readAll().contains("ready"));
}

OpenDatabase::~OpenDatabase()
{
    process_.closeWriteChannel();
    EXPECT_TRUE(process_.waitForFinished());
}

QByteArray profilesTable(const QByteArrayList &rows)
{
    const QByteArray table = "create table Profiles (id integer primary key, path, name);";
    return rows.isEmpty() ? table : table + "insert into Profiles (path, name) values " + rows.join(", ") + ";";
}

} // namespace vantrel::test
