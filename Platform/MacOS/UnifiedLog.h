#pragma once

#include "Platform/LogSink.h"

#include <memory>

namespace vantrel {

/// The system's log, in the subsystem "app.kestrune.Vantrel". It decides itself who sees what is private.
class UnifiedLog final : public LogSink {
public:
    UnifiedLog();
    ~UnifiedLog() override;
    Q_DISABLE_COPY_MOVE(UnifiedLog)

    void write(LogLevel level, const QString &category, const LogMessage &message) override;

private:
    struct Native;
    std::unique_ptr<Native> native_;
};

} // namespace vantrel
