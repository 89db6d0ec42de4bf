#pragma once

#include "Platform/PlatformError.h"

#include <QCoroTask>
#include <QString>

#include <expected>
#include <optional>

namespace vantrel {

/// How a script ended.
struct ScriptEnd {
    /// Zero for success, 128 and more when a signal ended it. None when it took longer than it may and was ended.
    std::optional<int> status;
    /// All that it printed. What is no UTF-8 is replaced.
    QString output;
    QString errorText;

    friend bool operator==(const ScriptEnd &, const ScriptEnd &) = default;
};

/// Runs scripts of the system's language for driving other applications. Main thread only; must outlive what it runs.
class ScriptRunner {
public:
    virtual ~ScriptRunner() = default;

    /// Runs the script beside this process. Fails with the system's words when it can't even be started.
    [[nodiscard]] virtual QCoro::Task<std::expected<ScriptEnd, PlatformError>> run(QString script) = 0;
};

} // namespace vantrel
