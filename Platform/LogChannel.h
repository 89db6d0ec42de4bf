#pragma once

#include "Platform/LogSink.h"

#include <QList>
#include <QString>

#include <optional>
#include <variant>

namespace vantrel {

/// What a placeholder of a log message stands for.
using LogValue = std::variant<QString, qint64, bool>;

/// One area's way to the log. Messages are formats with the placeholders of the macOS log: `%{public}s`, `%{private}s`,
/// `%ld`, `%d` and `%{bool}d`. Any thread.
class LogChannel {
public:
    /// The sink must outlive the channel.
    LogChannel(LogSink &sink, QString category) : sink_(sink), category_(std::move(category)) {}

    void information(QLatin1StringView format, const QList<LogValue> &values = {}) const;
    void notice(QLatin1StringView format, const QList<LogValue> &values = {}) const;
    void error(QLatin1StringView format, const QList<LogValue> &values = {}) const;

private:
    LogSink &sink_;
    QString category_;
};

/// The message with its values in their places, in the order in which they are given. Whatever would end the line is
/// written as an escape.
[[nodiscard]] LogMessage logMessage(QLatin1StringView format, const QList<LogValue> &values);

/// The message as one text, with "<private>" for each private part unless they are to be shown.
[[nodiscard]] QString logText(const LogMessage &message, bool showsPrivateParts);

/// A message as a log takes it that knows just these parts.
struct LogSections {
    QString before = {};
    /// From the first private part to the last one, with what lies between them; none when nothing is private.
    std::optional<QString> privateText = std::nullopt;
    QString after = {};

    friend bool operator==(const LogSections &, const LogSections &) = default;
};

[[nodiscard]] LogSections logSections(const LogMessage &message);

} // namespace vantrel
