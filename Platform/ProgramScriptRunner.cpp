#include "Platform/ProgramScriptRunner.h"

#include <QCoreApplication>
#include <QCoroTimer>
#include <QDeadlineTimer>
#include <QProcess>
#include <QStringDecoder>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr std::chrono::milliseconds pollInterval{20};
/// How long a program may take to end when it is asked to.
constexpr std::chrono::milliseconds timeToEnd{1000};
/// What shells add to a signal's number to make it an exit status.
constexpr int signalStatus = 128;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ProgramScriptRunner)
};

/// Qt puts the name of the call that failed before the system's reason.
QString systemReason(const QString &errorString)
{
    return errorString.section(u": "_s, -1);
}

QString decoded(const QByteArray &bytes)
{
    // Whole texts, so that nothing waits for more bytes, and a mark at the beginning is part of the text.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

} // namespace

ProgramScriptRunner::ProgramScriptRunner(QString program, std::chrono::milliseconds limit)
    : program_(std::move(program)),
      limit_(limit)
{
}

ProgramScriptRunner::~ProgramScriptRunner()
{
    for (QProcess *process : ending_.findChildren<QProcess *>()) {
        process->kill();
        process->waitForFinished();
    }
}

QCoro::Task<std::expected<ScriptEnd, PlatformError>> ProgramScriptRunner::run(QString script)
{
    auto process = std::make_unique<QProcess>();
    const QDeadlineTimer deadline(limit_);
    start(*process, script);
    while (process->state() != QProcess::NotRunning) {
        // Where this thread was busy all the time, the process may have ended without being noticed.
        if (deadline.hasExpired() && !process->waitForFinished(0)) {
            end(std::move(process));
            co_return ScriptEnd();
        }
        co_await QCoro::sleepFor(pollInterval);
    }
    co_return result(*process);
}

void ProgramScriptRunner::start(QProcess &process, const QString &script) const
{
    process.setProgram(program_);
    process.setArguments({u"-e"_s, script});
    process.setStandardInputFile(QProcess::nullDevice());
    process.start();
}

void ProgramScriptRunner::end(std::unique_ptr<QProcess> process)
{
    QProcess *ending = process.release();
    ending->setParent(&ending_);
    QObject::connect(ending, &QProcess::finished, ending, &QObject::deleteLater);
    QTimer::singleShot(timeToEnd, ending, &QProcess::kill);
    ending->terminate();
}

std::expected<ScriptEnd, PlatformError> ProgramScriptRunner::result(QProcess &process) const
{
    if (process.error() == QProcess::FailedToStart) {
        //: Error when a script can't be run. First: the program that runs scripts; second: the system's reason.
        return std::unexpected(
            PlatformError{Texts::tr("%1 can't be started: %2.").arg(program_, systemReason(process.errorString()))});
    }
    const bool isSignal = process.exitStatus() == QProcess::CrashExit;
    return ScriptEnd{
        .status = isSignal ? signalStatus + process.exitCode() : process.exitCode(),
        .output = decoded(process.readAllStandardOutput()),
        .errorText = decoded(process.readAllStandardError()),
    };
}

} // namespace vantrel
