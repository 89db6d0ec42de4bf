#include "Platform/Linux/DetachedProcess.h"

#include <QCoreApplication>
#include <QProcess>

#include <linux/close_range.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(DetachedProcess)
};

/// Qt puts the name of the call that failed before the system's reason.
QString systemReason(const QString &errorString)
{
    return errorString.section(u": "_s, -1);
}

} // namespace

QProcessEnvironment environmentForChildren(QProcessEnvironment variables)
{
    // systemd's for one service, the launchers' notes on which entry started this process, and what let this process
    // come to the front once.
    for (const auto name : {"INVOCATION_ID"_L1, "JOURNAL_STREAM"_L1, "NOTIFY_SOCKET"_L1, "WATCHDOG_PID"_L1,
                            "WATCHDOG_USEC"_L1, "LISTEN_FDS"_L1, "LISTEN_PID"_L1, "LISTEN_FDNAMES"_L1, "MANAGERPID"_L1,
                            "SYSTEMD_EXEC_PID"_L1, "GIO_LAUNCHED_DESKTOP_FILE"_L1, "GIO_LAUNCHED_DESKTOP_FILE_PID"_L1,
                            "BAMF_DESKTOP_FILE_HINT"_L1, "XDG_ACTIVATION_TOKEN"_L1, "DESKTOP_STARTUP_ID"_L1})
        variables.remove(name);
    return variables;
}

std::expected<void, PlatformError> startDetached(const QStringList &commandLine, const QString &workingDirectory,
                                                 const QProcessEnvironment &environment)
{
    if (commandLine.isEmpty()) {
        //: Error when a browser's desktop entry doesn't say which program to start.
        return std::unexpected(PlatformError{Texts::tr("There is no program to start.")});
    }
    QProcess process;
    process.setProgram(commandLine.first());
    process.setArguments(commandLine.sliced(1));
    process.setWorkingDirectory(workingDirectory);
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    // No file of this process is meant for another one, but libraries and whoever started it may have left some open
    // for children; a browser would keep them for days. (Qt 6.4 calls no child process modifier for detached
    // processes.)
    close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    if (process.startDetached())
        return {};
    //: Error when a browser can't be started. First: its program; second: the system's reason.
    return std::unexpected(PlatformError{
        Texts::tr("%1 can't be started: %2.").arg(commandLine.first(), systemReason(process.errorString()))});
}

} // namespace vantrel
