#pragma once

#include "Platform/ScriptRunner.h"

#include <QObject>

#include <chrono>
#include <memory>

class QProcess;

namespace vantrel {

/// Hands scripts to a program that takes them as `-e SCRIPT`, such as `/usr/bin/osascript`.
class ProgramScriptRunner final : public ScriptRunner {
public:
    static constexpr std::chrono::milliseconds usualLimit = std::chrono::seconds(5);

    /// `program` is a path. A script that runs longer than `limit` is ended.
    explicit ProgramScriptRunner(QString program, std::chrono::milliseconds limit = usualLimit);
    /// Ends what didn't end when it was told to.
    ~ProgramScriptRunner() override;
    Q_DISABLE_COPY_MOVE(ProgramScriptRunner)

    [[nodiscard]] QCoro::Task<std::expected<ScriptEnd, PlatformError>> run(QString script) override;

private:
    void start(QProcess &process, const QString &script) const;
    void end(std::unique_ptr<QProcess> process);
    [[nodiscard]] std::expected<ScriptEnd, PlatformError> result(QProcess &process) const;

    QString program_;
    std::chrono::milliseconds limit_;
    /// Owns the processes that were told to end.
    QObject ending_;
};

} // namespace vantrel
