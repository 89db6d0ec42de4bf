#pragma once

#include <QList>
#include <QString>

#include <cstdint>

namespace vantrel {

enum class LogLevel : std::uint8_t {
    /// What helps to follow a case and is not worth keeping.
    information,
    /// What the system's log calls its default level.
    notice,
    error,
};

/// A part of a message.
struct LogPart {
    QString text;
    /// Whether it is for nobody who merely reads the log, such as a link.
    bool isPrivate = false;

    friend bool operator==(const LogPart &, const LogPart &) = default;
};

/// One line, in parts of which no two neighbours are both public.
using LogMessage = QList<LogPart>;

/// The system's log. Any thread.
class LogSink {
public:
    virtual ~LogSink() = default;

    /// `category` is the area of the program, such as "Profiles".
    virtual void write(LogLevel level, const QString &category, const LogMessage &message) = 0;
};

} // namespace vantrel
