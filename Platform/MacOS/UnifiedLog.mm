#include "Platform/MacOS/UnifiedLog.h"

#include "Platform/LogChannel.h"

#include <QHash>
#include <QMutex>

#import <Foundation/Foundation.h>
#import <os/log.h>

namespace vantrel {
namespace {

os_log_type_t typeOf(LogLevel level)
{
    switch (level) {
    case LogLevel::information: return OS_LOG_TYPE_INFO;
    case LogLevel::notice: return OS_LOG_TYPE_DEFAULT;
    case LogLevel::error: return OS_LOG_TYPE_ERROR;
    }
    Q_UNREACHABLE();
}

} // namespace

struct UnifiedLog::Native {
    os_log_t log(const QString &category)
    {
        const QMutexLocker lock(&mutex);
        auto found = logs.find(category);
        if (found == logs.end())
            found = logs.insert(category, os_log_create("app.kestrune.Vantrel", category.toUtf8().constData()));
        return *found;
    }

    QMutex mutex;
    QHash<QString, os_log_t> logs;
};

UnifiedLog::UnifiedLog() : native_(std::make_unique<Native>()) {}

UnifiedLog::~UnifiedLog() = default;

void UnifiedLog::write(LogLevel level, const QString &category, const LogMessage &message)
{
    os_log_t log = native_->log(category);
    const LogSections sections = logSections(message);
    const QByteArray before = sections.before.toUtf8();
    if (!sections.privateText) {
        os_log_with_type(log, typeOf(level), "%{public}s", before.constData());
        return;
    }
    const QByteArray privateText = sections.privateText->toUtf8();
    const QByteArray after = sections.after.toUtf8();
    os_log_with_type(log, typeOf(level), "%{public}s%{private}s%{public}s", before.constData(), privateText.constData(),
                     after.constData());
}

} // namespace vantrel
