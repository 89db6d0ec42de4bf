#include "Platform/FinishedProcess.h"

#include <QCoreApplication>
#include <QCoroProcess>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FinishedProcess)
};

std::unexpected<PlatformError> failure(const QString &message)
{
    return std::unexpected(PlatformError{message});
}

} // namespace

QCoro::Task<std::expected<void, PlatformError>> runToEnd(QString program, QStringList arguments)
{
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    // Takes as long as the system needs to load the program. Waiting for it in the event loop would not tell a program
    // that can't be started from one that is slow.
    if (!process.waitForStarted()) {
        //: Error when a program can't be started. First: its path; second: the system's reason.
        co_return failure(
            Texts::tr("%1 can't be started: %2.").arg(program, process.errorString().section(u": "_s, -1)));
    }
    constexpr std::chrono::milliseconds noLimit{-1};
    co_await qCoro(process).waitForFinished(noLimit);
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        co_return {};
    const QString words = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    if (!words.isEmpty())
        co_return failure(words);
    if (process.exitStatus() == QProcess::CrashExit) {
        //: Error when a program crashed. The placeholder is its path.
        co_return failure(Texts::tr("%1 crashed.").arg(program));
    }
    //: Error when a program failed without saying why. First: its path; second: a number.
    co_return failure(Texts::tr("%1 ended with the status %2.").arg(program).arg(process.exitCode()));
}

} // namespace vantrel
