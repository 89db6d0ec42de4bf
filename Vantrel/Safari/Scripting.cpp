#include "Vantrel/Safari/Scripting.h"

#include "VantrelKit/Safari/SafariMenus.h"

using namespace Qt::StringLiterals;

namespace vantrel::Safari {

LogChannel scriptingErrors(LogSink &log)
{
    return {log, u"ScriptingErrors"_s};
}

Scripting::Scripting(ScriptRunner &runner, LogSink &log) : runner_(runner), log_(scriptingErrors(log)) {}

QCoro::Task<Result<QString>> Scripting::run(QString script)
{
    const auto end = co_await runner_.run(script);
    co_return outcome(end);
}

QCoro::Task<Result<QStringList>> Scripting::list(QString script)
{
    const auto lines = co_await run(script);
    if (!lines)
        co_return std::unexpected(lines.error());
    co_return SafariMenus::items(*lines);
}

Result<QString> Scripting::outcome(const std::expected<ScriptEnd, PlatformError> &end) const
{
    if (!end)
        return std::unexpected(Failure{end.error().message});
    const std::optional<int> status = end->status;
    if (!status)
        return std::unexpected(Failure::timeOut());
    if (*status == 0)
        return end->output;
    const QString text = end->errorText.trimmed();
    log_.error("AppleScript failed: %{public}s"_L1, {text});
    return std::unexpected(Failure::ofScript(text));
}

} // namespace vantrel::Safari
