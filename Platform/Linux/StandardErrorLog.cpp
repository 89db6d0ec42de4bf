#include "Platform/Linux/StandardErrorLog.h"

#include "Platform/LogChannel.h"

#include <sys/stat.h>
#include <syslog.h>
#include <unistd.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Whether standard error is the stream that $JOURNAL_STREAM names by its device and inode (systemd.exec(5)): a program
/// may inherit the variable and have its errors sent elsewhere.
bool isJournalStream(const QString &variable)
{
    struct stat status = {};
    if (variable.isEmpty() || fstat(STDERR_FILENO, &status) != 0)
        return false;
    return variable == QString::number(status.st_dev) + u':' + QString::number(status.st_ino);
}

int priority(LogLevel level)
{
    switch (level) {
    case LogLevel::information: return LOG_INFO;
    case LogLevel::notice: return LOG_NOTICE;
    case LogLevel::error: return LOG_ERR;
    }
    Q_UNREACHABLE();
}

/// In one piece, so that lines of several threads don't mix.
void writeWhole(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(STDERR_FILENO, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        // There is nowhere left to say that the log can't be written.
        if (written <= 0)
            return;
        bytes = bytes.sliced(written);
    }
}

} // namespace

StandardErrorLog::StandardErrorLog(const QProcessEnvironment &variables)
    : showsPrivateParts_(variables.value(u"VANTREL_LOG_PRIVATE"_s) == "1"_L1),
      isJournal_(isJournalStream(variables.value(u"JOURNAL_STREAM"_s)))
{
}

void StandardErrorLog::write(LogLevel level, const QString &category, const LogMessage &message)
{
    QByteArray line;
    if (isJournal_)
        line = '<' + QByteArray::number(priority(level)) + '>';
    line += "app.kestrune.Vantrel [" + category.toUtf8() + "] " + logText(message, showsPrivateParts_).toUtf8() + '\n';
    writeWhole(line);
}

} // namespace vantrel
