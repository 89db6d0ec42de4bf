#pragma once

#include "Platform/LogChannel.h"

#include <QMutex>
#include <QStringList>

namespace vantrel::test {

/// A log that a test reads: "[Profiles] message", "[Profiles] error: message" and "[Profiles] information: message".
class FakeLog final : public LogSink {
public:
    void setShowsPrivateParts(bool shows) { showsPrivateParts_ = shows; }

    void write(LogLevel level, const QString &category, const LogMessage &message) override
    {
        const QMutexLocker lock(&mutex_);
        lines_.append(u'[' + category + QStringLiteral("] ") + mark(level) + logText(message, showsPrivateParts_));
    }

    /// The lines since the last time.
    [[nodiscard]] QStringList takeLines()
    {
        const QMutexLocker lock(&mutex_);
        return std::exchange(lines_, {});
    }

private:
    static QString mark(LogLevel level)
    {
        switch (level) {
        case LogLevel::information: return QStringLiteral("information: ");
        case LogLevel::notice: return {};
        case LogLevel::error: return QStringLiteral("error: ");
        }
        Q_UNREACHABLE();
    }

    QMutex mutex_;
    QStringList lines_;
    bool showsPrivateParts_ = false;
};

} // namespace vantrel::test
