#pragma once

#include "Platform/LogSink.h"

#include <QProcessEnvironment>

namespace vantrel {

/// The log of a Linux program: its standard error, which a desktop connects to the journal. Where it has done so, lines
/// begin with the priority that the journal reads there (sd-daemon(3)).
class StandardErrorLog final : public LogSink {
public:
    explicit StandardErrorLog(const QProcessEnvironment &variables);

    void write(LogLevel level, const QString &category, const LogMessage &message) override;

private:
    /// The user wants to see what is otherwise left out.
    bool showsPrivateParts_;
    bool isJournal_;
};

} // namespace vantrel
