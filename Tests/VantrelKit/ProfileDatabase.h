#pragma once

#include "Tests/VantrelKit/Printing.h"

#include <QProcess>
#include <QString>

namespace vantrel::test {

/// The program that reads and makes the databases.
inline const QString sqlite3 = QStringLiteral("/usr/bin/sqlite3");

/// Makes or changes a database by statements, with the real program.
void runSql(const QString &database, const QByteArray &statements);

/// A connection that stays open until the object goes, after having run statements: a browser that holds its database.
class OpenDatabase {
public:
    OpenDatabase(const QString &database, const QByteArray &statements);
    ~OpenDatabase();
    Q_DISABLE_COPY_MOVE(OpenDatabase)

private:
    QProcess process_;
};

/// Statements that make the table of profiles, with rows such as "('Profiles/a', 'Name')".
[[nodiscard]] QByteArray profilesTable(const QByteArrayList &rows);

} // namespace vantrel::test
