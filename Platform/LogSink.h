#pragma once

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

/// The system's log. Any thread.
class LogSink {
public:
    virtual ~LogSink() = default;

    /// Whether the user wants to see what would otherwise be left out of the log, such as links.
    [[nodiscard]] virtual bool showsPrivateValues() const = 0;

    /// `category` is the area of the program, such as "Profiles". The message is one line.
    virtual void write(LogLevel level, const QString &category, const QString &message) = 0;
};

} // namespace vantrel
