#pragma once

#include "Platform/LogChannel.h"
#include "Platform/ScriptRunner.h"
#include "Vantrel/Safari/Failure.h"

#include <QCoroTask>
#include <QStringList>

namespace vantrel::Safari {

/// Where failures of scripts are logged.
[[nodiscard]] LogChannel scriptingErrors(LogSink &log);

/// Runs scripts and says what their failures mean. Main thread only; both references must outlive it.
class Scripting {
public:
    Scripting(ScriptRunner &runner, LogSink &log);

    /// What the script printed.
    [[nodiscard]] QCoro::Task<Result<QString>> run(QString script);
    /// The items that a script printed.
    [[nodiscard]] QCoro::Task<Result<QStringList>> list(QString script);

private:
    [[nodiscard]] Result<QString> outcome(const std::expected<ScriptEnd, PlatformError> &end) const;

    ScriptRunner &runner_;
    LogChannel log_;
};

} // namespace vantrel::Safari
