#pragma once

#include "Platform/LogSink.h"

#include <QMutex>
#include <QStringList>

namespace vantrel::test {

/// A log that a test reads: "[Profiles] message", "[Profiles] error: message" and "[Profiles] information: message".
class FakeLog final : public LogSink {
public:
    [[nodiscard]] bool showsPrivateValues() const override { return showsPrivateValues_; }
    void setShowsPrivateValues(bool shows) { showsPrivateValues_ = shows; }

    void write(LogLevel level, const QString &category, const QString &message) override
    {
        const QMutexLocker lock(&mutex_);
        lines_.append(u'[' + category + QStringLiteral("] ") + mark(level) + message);
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
    bool showsPrivateValues_ = false;
};

} // namespace vantrel::test
