#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"
#include "VantrelKit/ProfileGroups.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// What the program that reads the database is told and how its answer is taken: shell scripts stand in for it.
class ProfileGroupsProgram : public testing::Test {
protected:
    ProfileGroupsProgram() { root.write(u"data/Profile Groups/a.sqlite"_s); }

    /// The answer in a process that is ended if it takes a minute.
    [[nodiscard]] QString answerOf(const QString &program) const
    {
        return test::answerOfUnprivilegedProcess([this, &program] {
            return test::described(profileGroupRows(root.path(u"data"_s), program)).remove(root.path(u"data/"_s));
        });
    }

    /// The answer with a script in place of the program.
    [[nodiscard]] QString answerOfScript(const QByteArray &script) const
    {
        return answerOf(root.writeScript(u"sqlite3"_s, script));
    }

    /// The answer with a program that prints this.
    [[nodiscard]] QString answerTo(const QByteArray &output) const
    {
        root.write(u"output"_s, output);
        return answerOfScript("exec cat '" + root.path(u"output"_s).toUtf8() + "'\n");
    }

    /// Where a script may leave files.
    [[nodiscard]] QByteArray notes() const
    {
        const QString notes = root.makeFolder(u"notes"_s);
        EXPECT_TRUE(QFile::setPermissions(notes, QFile::Permissions::fromInt(0x7777)));
        return notes.toUtf8();
    }

    test::TemporaryFolder root;
};

TEST_F(ProfileGroupsProgram, ItGetsExactlyFourArguments)
{
    const QByteArray script = "printf '%s\\n' \"$#\" \"$@\" > '" + notes() + "/arguments'\necho '[]'\n";
    EXPECT_EQ(answerOfScript(script), u"no profiles"_s);
    const QByteArray database = root.path(u"data/Profile Groups/a.sqlite"_s).toUtf8();
    EXPECT_EQ(root.read(u"notes/arguments"_s),
              "4\n-readonly\n-json\n" + database + "\nselect path, name from Profiles\n");
}

TEST_F(ProfileGroupsProgram, ItGetsNoInputAndItsComplaintsAreThrownAway)
{
    const QByteArray script = "cat > '" + notes() +
                              "/input'\n" //
                              "readlink /proc/self/fd/0 /proc/self/fd/2 > '" +
                              notes() +
                              "/descriptors'\n"
                              "echo complaint >&2\n"
                              "echo '[{\"path\":\"a\",\"name\":\"A\"}]'\n";
    EXPECT_EQ(answerOfScript(script), u"A in a"_s);
    EXPECT_EQ(root.read(u"notes/input"_s), "");
    EXPECT_EQ(root.read(u"notes/descriptors"_s), "/dev/null\n/dev/null\n");
}

TEST_F(ProfileGroupsProgram, ItRunsOnce)
{
    EXPECT_EQ(answerOfScript("echo run >> '" + notes() + "/runs'\nexit 1\n"), u"no profiles"_s);
    EXPECT_EQ(root.read(u"notes/runs"_s), "run\n");
}

TEST_F(ProfileGroupsProgram, ItDoesNotRunWithoutADatabase)
{
    EXPECT_TRUE(QFile::remove(root.path(u"data/Profile Groups/a.sqlite"_s)));
    root.write(u"data/Profile Groups/a.sqlite-wal"_s);
    EXPECT_EQ(answerOfScript("echo run >> '" + notes() + "/runs'\necho '[{\"path\":\"a\"}]'\n"), u"no profiles"_s);
    EXPECT_FALSE(QFile::exists(root.path(u"notes/runs"_s)));
}

TEST_F(ProfileGroupsProgram, AProgramThatIsMissingOrCanNotBeRunGivesNoRows)
{
    EXPECT_EQ(answerOf(root.path(u"missing"_s)), u"no profiles"_s);
    EXPECT_EQ(answerOf(root.makeFolder(u"folder"_s)), u"no profiles"_s);
    EXPECT_EQ(answerOf(root.write(u"plain"_s, "#!/bin/sh\necho '[{\"path\":\"a\"}]'\n")), u"no profiles"_s);
    EXPECT_EQ(answerOf({}), u"no profiles"_s);
}

TEST_F(ProfileGroupsProgram, AProgramThatFailsGivesNoRows)
{
    const QByteArray rows = "echo '[{\"path\":\"a\",\"name\":\"A\"}]'\n";
    EXPECT_EQ(answerOfScript(rows), u"A in a"_s);
    for (const QByteArray end : {"exit 1", "exit 2", "exit 255"})
        EXPECT_EQ(answerOfScript(rows + end + "\n"), u"no profiles"_s) << end.toStdString();
}

TEST_F(ProfileGroupsProgram, AProgramThatIsKilledGivesNoRows)
{
    const QByteArray rows = "echo '[{\"path\":\"a\",\"name\":\"A\"}]'\n";
    for (const QByteArray signal : {"KILL", "TERM", "SEGV"})
        EXPECT_EQ(answerOfScript(rows + "kill -" + signal + " $$\n"), u"no profiles"_s) << signal.toStdString();
}

TEST_F(ProfileGroupsProgram, MegabytesOfOutputAreReadWhole)
{
    QByteArray output = "[";
    for (int number = 0; number < 60000; ++number) {
        output += (number > 0 ? "," : "") + QByteArray("{\"path\":\"p\",\"name\":\"") + QByteArray(60, 'n') +
                  QByteArray::number(number) + "\"}\n";
    }
    output += "]";
    ASSERT_GT(output.size(), 5 * 1024 * 1024);
    root.write(u"output"_s, output);
    const QString program = root.writeScript(u"sqlite3"_s, "exec cat '" + root.path(u"output"_s).toUtf8() + "'\n");
    const QString answer = test::answerOfUnprivilegedProcess([this, &program]() -> QString {
        const auto profiles = profileGroupRows(root.path(u"data"_s), program);
        return QString::number(profiles->size()) + u' ' + profiles->last().name.right(5);
    });
    EXPECT_EQ(answer, u"60000 59999"_s);
}

TEST_F(ProfileGroupsProgram, MegabytesOfComplaintsDoNotStallIt)
{
    EXPECT_EQ(answerOfScript("head -c 5000000 /dev/zero >&2\necho '[{\"path\":\"a\"}]'\n"), u"a in a"_s);
}

TEST_F(ProfileGroupsProgram, OutputInPiecesIsReadWhole)
{
    EXPECT_EQ(answerOfScript("printf '[{\"path\"'\nsleep 0.1\nprintf ':\"a\"'\nsleep 0.1\nprintf '}]'\n"), u"a in a"_s);
}

TEST_F(ProfileGroupsProgram, OutputThatIsNoListOfRowsGivesNone)
{
    for (const QByteArray output : {"",
                                    "\n",
                                    "nonsense",
                                    "{}",
                                    "null",
                                    "5",
                                    "[5]",
                                    "[null]",
                                    "[[]]",
                                    "[{}]",
                                    "[{\"name\":\"A\"}]",
                                    "[{\"path\":null}]",
                                    "[{\"path\":5}]",
                                    "[{\"path\":\"a\",\"name\":5}]",
                                    "[{\"path\":\"a\"}",
                                    "[{\"path\":\"a\"}] more",
                                    "[{\"path\":\"a\"}][]",
                                    "[{\"path\":\"\xff\"}]",
                                    "[{\"path\":\"a\"},{\"name\":\"B\"}]",
                                    "[{\"Path\":\"a\"}]"})
        EXPECT_EQ(answerTo(output), u"no profiles"_s) << output.toStdString();
    EXPECT_EQ(answerTo(QByteArray(100000, '[')), u"no profiles"_s);
}

TEST_F(ProfileGroupsProgram, RowsAreReadWithOrWithoutAName)
{
    EXPECT_EQ(answerTo(R"([{"path":"Profiles/a","name":"A","id":1},{"path":"b/c.d"},{"name":null,"path":"e"}])"),
              u"A in Profiles/a; c.d in b/c.d; e in e"_s);
    EXPECT_EQ(answerTo("[]"), u"no profiles"_s);
}

TEST_F(ProfileGroupsProgram, APathIsBelowTheDataFolderInAnyCase)
{
    EXPECT_EQ(answerTo(R"([{"path":"/etc","name":"A"},{"path":"a/","name":"B"}])"), u"A in etc; B in a"_s);
}

} // namespace
} // namespace vantrel
