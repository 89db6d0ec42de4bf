#include "Platform/MacOS/UnifiedLog.h"

#include "Tests/Contract/LogSinkContract.h"

#include <QTest>
#include <QUuid>

#import <Foundation/Foundation.h>
#import <OSLog/OSLog.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// This program's lines in the system's log.
QStringList logged()
{
    NSError *error = nil;
    OSLogStore *store = [OSLogStore storeWithScope:OSLogStoreCurrentProcessIdentifier error:&error];
    OSLogEnumerator *entries = [store entriesEnumeratorWithOptions:0 position:nil predicate:nil error:&error];
    EXPECT_NE(entries, nil) << error.localizedDescription.UTF8String;
    QStringList lines;
    for (OSLogEntry *entry in entries) {
        if (![entry isKindOfClass:[OSLogEntryLog class]])
            continue;
        auto *line = static_cast<OSLogEntryLog *>(entry);
        if ([line.subsystem isEqualToString:@"app.kestrune.Vantrel"])
            lines.append(u'[' + QString::fromNSString(line.category) + u"] "_s +
                         QString::fromNSString(line.composedMessage));
    }
    return lines;
}

class UnifiedLogSystem {
public:
    UnifiedLogSystem() { log_.write(LogLevel::notice, u"Tests"_s, {{.text = begin_}}); }

    LogSink &sink() { return log_; }

    [[nodiscard]] QStringList lines(qsizetype count) const
    {
        QStringList lines;
        std::ignore = QTest::qWaitFor(
            [&] {
                lines = linesSinceBegin();
                return lines.size() >= count;
            },
            20'000);
        return lines;
    }

private:
    [[nodiscard]] QStringList linesSinceBegin() const
    {
        const QStringList lines = logged();
        const qsizetype begin = lines.indexOf(u"[Tests] "_s + begin_);
        return begin < 0 ? QStringList() : lines.sliced(begin + 1);
    }

    UnifiedLog log_;
    /// Of the lines of this system alone: the log has those of all that ran before in this process.
    QString begin_ = QUuid::createUuid().toString();
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, LogSinkContract, UnifiedLogSystem);

} // namespace test
} // namespace vantrel
