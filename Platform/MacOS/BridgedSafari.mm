#include "Platform/MacOS/BridgedSafari.h"

#include "Platform/MacOS/MacRunningApplications.h"

#include <QCoroFuture>

#import <ScriptingBridge/ScriptingBridge.h>

using namespace vantrel;

/// What is used of Safari's scripting definition; the bridge answers to the names in it. None of these has a type of
/// its own there that the compiler knows.
@protocol VantrelSafariTab
@property(copy) NSString *URL;
@end

@protocol VantrelSafariWindow
@property(readonly) NSInteger id;
@property(copy) id currentTab;
- (SBElementArray<id<VantrelSafariTab>> *)tabs;
@end

@protocol VantrelSafari
- (SBElementArray<id<VantrelSafariWindow>> *)windows;
@end

/// Hears of each event that fails, without which the bridge would raise exceptions.
@interface VantrelSafariErrors : NSObject <SBApplicationDelegate>
@property BOOL hasFailed;
- (instancetype)initWithReport:(std::function<void(const QString &)>)report;
- (void)report:(NSString *)reason;
@end

@implementation VantrelSafariErrors {
    std::function<void(const QString &)> _report;
}

- (instancetype)initWithReport:(std::function<void(const QString &)>)report
{
    self = [super init];
    if (self)
        _report = std::move(report);
    return self;
}

- (nullable id)eventDidFail:(const AppleEvent *)event withError:(NSError *)error
{
    [self report:error.localizedDescription];
    return nil;
}

- (void)report:(NSString *)reason
{
    self.hasFailed = YES;
    if (_report)
        _report(QString::fromNSString(reason));
}

@end

namespace vantrel {
namespace {

using Ticks = std::chrono::duration<long, std::ratio<1, 60>>;

} // namespace

/// Used on the queue alone.
struct BridgedSafari::Native {
    QString bundleID;
    SafariBridge::Settings settings;
    VantrelSafariErrors *errors = nil;
    SBApplication *application = nil;

    /// False when the system makes no such application.
    bool connect()
    {
        if (application)
            return true;
        application = [[SBApplication alloc] initWithBundleIdentifier:bundleID.toNSString()];
        if (!application)
            return false;
        errors = [[VantrelSafariErrors alloc] initWithReport:settings.sendingFailed];
        application.delegate = errors;
        application.timeout = std::chrono::duration_cast<Ticks>(settings.answerLimit).count();
        return true;
    }

    /// What `work` answers; none when an event in it fails.
    template <typename T>
    std::optional<T> ask(const std::function<std::optional<T>()> &work)
    {
        if (!connect())
            return std::nullopt;
        errors.hasFailed = NO;
        std::optional<T> answer;
        @try {
            answer = work();
        } @catch (NSException *exception) {
            [errors report:exception.reason ?: exception.name];
        }
        return errors.hasFailed ? std::nullopt : answer;
    }

    id<VantrelSafari> safari() const { return static_cast<id<VantrelSafari>>(static_cast<id>(application)); }

    id<VantrelSafariWindow> window(qint64 windowID) const { return [[safari() windows] objectWithID:@(windowID)]; }

    /// A reference to it, for which nothing is sent.
    id<VantrelSafariTab> tab(qint64 windowID, qsizetype index) const
    {
        return [[window(windowID) tabs] objectAtIndex:static_cast<NSUInteger>(index)];
    }

    std::optional<QList<qint64>> windowIDs() const
    {
        NSArray *ids = [[safari() windows] arrayByApplyingSelector:@selector(id)];
        if (!ids)
            return std::nullopt;
        QList<qint64> numbers;
        for (id number in ids) {
            if ([number isKindOfClass:[NSNumber class]])
                numbers.append([static_cast<NSNumber *>(number) longLongValue]);
        }
        return numbers;
    }

    std::optional<QStringList> tabURLs(qint64 windowID) const
    {
        NSArray<id<VantrelSafariTab>> *tabs = [[window(windowID) tabs] get];
        if (!tabs)
            return std::nullopt;
        QStringList urls;
        // One by one: asked for all at once, those without would be missing.
        for (id<VantrelSafariTab> tab in tabs) {
            id url = tab.URL;
            urls.append([url isKindOfClass:[NSString class]] ? QString::fromNSString(url) : QString());
        }
        return urls;
    }

    std::optional<qsizetype> addTab(qint64 windowID) const
    {
        Class type = [application classForScriptingClass:@"tab"];
        id<VantrelSafariTab> tab = [[type alloc] init];
        SBElementArray<id<VantrelSafariTab>> *tabs = [window(windowID) tabs];
        if (!tab || !tabs)
            return std::nullopt;
        [tabs addObject:tab];
        NSArray *now = [tabs get];
        return now.count > 0 ? std::optional(static_cast<qsizetype>(now.count) - 1) : std::nullopt;
    }
};

BridgedSafari::BridgedSafari(QString bundleID, SafariBridge::Settings settings)
    : bundleID_(std::move(bundleID)),
      native_(new Native{.bundleID = bundleID_, .settings = std::move(settings)})
{
}

BridgedSafari::~BridgedSafari()
{
    // The bridge's objects end on their own queue, too, where something may still be under way.
    std::ignore = queue_.run<bool>([native = std::move(native_)] { return native != nullptr; });
}

bool BridgedSafari::isRunning() const
{
    return hasRunningInstance(bundleID_);
}

QCoro::Task<> BridgedSafari::activate()
{
    const auto answer = queue_.run<std::optional<bool>>([native = native_] {
        return native->ask<bool>([native] {
            [native->application activate];
            return std::optional(true);
        });
    });
    co_await answer.future();
}

QCoro::Task<std::optional<QList<qint64>>> BridgedSafari::windowIDs()
{
    const auto answer = queue_.run<std::optional<QList<qint64>>>(
        [native = native_] { return native->ask<QList<qint64>>([native] { return native->windowIDs(); }); });
    co_return co_await answer.future();
}

QCoro::Task<std::optional<QStringList>> BridgedSafari::tabURLs(qint64 windowID)
{
    const auto answer = queue_.run<std::optional<QStringList>>([native = native_, windowID] {
        return native->ask<QStringList>([native, windowID] { return native->tabURLs(windowID); });
    });
    co_return co_await answer.future();
}

QCoro::Task<std::optional<qsizetype>> BridgedSafari::addTab(qint64 windowID)
{
    const auto answer = queue_.run<std::optional<qsizetype>>([native = native_, windowID] {
        return native->ask<qsizetype>([native, windowID] { return native->addTab(windowID); });
    });
    co_return co_await answer.future();
}

QCoro::Task<> BridgedSafari::setURL(qint64 windowID, qsizetype tab, QString url)
{
    const auto answer = queue_.run<std::optional<bool>>([native = native_, windowID, tab, url] {
        return native->ask<bool>([native, windowID, tab, url] {
            native->tab(windowID, tab).URL = url.toNSString();
            return std::optional(true);
        });
    });
    co_await answer.future();
}

QCoro::Task<> BridgedSafari::setCurrentTab(qint64 windowID, qsizetype tab)
{
    const auto answer = queue_.run<std::optional<bool>>([native = native_, windowID, tab] {
        return native->ask<bool>([native, windowID, tab] {
            native->window(windowID).currentTab = native->tab(windowID, tab);
            return std::optional(true);
        });
    });
    co_await answer.future();
}

} // namespace vantrel
