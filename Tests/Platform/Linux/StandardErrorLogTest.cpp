#include "Platform/Linux/StandardErrorLog.h"

#include "Tests/Contract/LogSinkContract.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QFile>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Standard error in a file for as long as it lives.
class CapturedErrors {
public:
    CapturedErrors() : former_(dup(STDERR_FILENO))
    {
        const QByteArray path = QFile::encodeName(folder_.write(u"errors"_s));
        const int file = open(path.constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
        dup2(file, STDERR_FILENO);
        close(file);
    }
    ~CapturedErrors()
    {
        dup2(former_, STDERR_FILENO);
        close(former_);
    }
    Q_DISABLE_COPY_MOVE(CapturedErrors)

    [[nodiscard]] QByteArray text() const { return folder_.read(u"errors"_s); }

    /// As systemd would name it.
    [[nodiscard]] static QString stream()
    {
        struct stat status = {};
        fstat(STDERR_FILENO, &status);
        return QString::number(status.st_dev) + u':' + QString::number(status.st_ino);
    }

private:
    test::TemporaryFolder folder_;
    int former_;
};

QProcessEnvironment with(const QString &name, const QString &value)
{
    QProcessEnvironment variables;
    variables.insert(name, value);
    return variables;
}

TEST(StandardErrorLog, ALineHasSubsystemCategoryAndMessage)
{
    const CapturedErrors errors;
    StandardErrorLog log({});
    log.write(LogLevel::notice, u"Open"_s, {{u"Größe"_s}});
    log.write(LogLevel::error, u"Profiles"_s, {{u"two"_s}});
    EXPECT_EQ(errors.text(), "app.kestrune.Vantrel [Open] Größe\napp.kestrune.Vantrel [Profiles] two\n");
}

TEST(StandardErrorLog, InTheJournalALineBeginsWithItsPriority)
{
    const CapturedErrors errors;
    StandardErrorLog log(with(u"JOURNAL_STREAM"_s, CapturedErrors::stream()));
    log.write(LogLevel::notice, u"Open"_s, {{u"one"_s}});
    log.write(LogLevel::error, u"Open"_s, {{u"two"_s}});
    log.write(LogLevel::information, u"Open"_s, {{u"three"_s}});
    EXPECT_EQ(errors.text(), "<5>app.kestrune.Vantrel [Open] one\n<3>app.kestrune.Vantrel [Open] two\n"
                             "<6>app.kestrune.Vantrel [Open] three\n");
}

TEST(StandardErrorLog, AnotherProcessesJournalIsNotOurs)
{
    const CapturedErrors errors;
    for (const QString &stream : QStringList{u"1:2"_s, u""_s, u"junk"_s, CapturedErrors::stream() + u'0'})
        StandardErrorLog(with(u"JOURNAL_STREAM"_s, stream)).write(LogLevel::error, u"Open"_s, {{u"x"_s}});
    EXPECT_EQ(errors.text(), QByteArray("app.kestrune.Vantrel [Open] x\n").repeated(4));
}

TEST(StandardErrorLog, PrivateValuesAreShownOnRequestOnly)
{
    const CapturedErrors errors;
    for (const QString &value : {QString(), u"1"_s, u"0"_s}) {
        const QProcessEnvironment variables = with(u"VANTREL_LOG_PRIVATE"_s, value);
        StandardErrorLog(variables).write(LogLevel::error, u"Open"_s, {{u"link: "_s}, {u"secret"_s, true}});
    }
    EXPECT_EQ(errors.text(), "app.kestrune.Vantrel [Open] link: <private>\n"
                             "app.kestrune.Vantrel [Open] link: secret\n"
                             "app.kestrune.Vantrel [Open] link: <private>\n");
}

/// A terminal, or a file that somebody has the errors sent to.
class StandardErrorSystem {
public:
    LogSink &sink() { return log_; }

    /// The program's lines, without its name. They are there once they are written.
    [[nodiscard]] QStringList lines(qsizetype /*count*/) const
    {
        const QString name = u"app.kestrune.Vantrel "_s;
        QStringList lines = QString::fromUtf8(errors_.text()).split(u'\n');
        EXPECT_EQ(lines.takeLast(), QString()) << "The last line has no end.";
        for (QString &line : lines) {
            EXPECT_TRUE(line.startsWith(name)) << line.toStdString();
            line.remove(0, name.size());
        }
        return lines;
    }

private:
    CapturedErrors errors_;
    StandardErrorLog log_{{}};
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, LogSinkContract, StandardErrorSystem);

} // namespace test
} // namespace vantrel
