#include "Platform/MacOS/Opening.h"

#include "Platform/MacOS/Answer.h"

#include <QCoroFuture>

#import <AppKit/AppKit.h>

namespace vantrel {
namespace {

using Result = std::expected<void, PlatformError>;

NSWorkspaceOpenConfiguration *configurationOf(const Opening &opening)
{
    NSWorkspaceOpenConfiguration *configuration = [NSWorkspaceOpenConfiguration configuration];
    NSMutableArray<NSString *> *arguments = [NSMutableArray arrayWithCapacity:NSUInteger(opening.arguments.size())];
    for (const QString &argument : opening.arguments)
        [arguments addObject:argument.toNSString()];
    configuration.arguments = arguments;
    configuration.createsNewApplicationInstance = opening.instance == Opening::Instance::another;
    configuration.activates = opening.appearance == Opening::Appearance::front;
    configuration.hides = opening.appearance == Opening::Appearance::hidden;
    return configuration;
}

Result failure(NSError *error)
{
    return std::unexpected(PlatformError{QString::fromNSString(error.localizedDescription)});
}

/// Gives the answer on any thread. It is a copy for the block, which would keep a reference as a reference.
void start(const Opening &opening, Answer<Result> answer)
{
    // A process without an event loop has no pool of its own.
    @autoreleasepool {
        [NSWorkspace.sharedWorkspace openApplicationAtURL:opening.application.toNSURL()
                                            configuration:configurationOf(opening)
                                        completionHandler:^(NSRunningApplication *, NSError *error) {
                                          answer.give(error ? failure(error) : Result());
                                        }];
    }
}

} // namespace

QCoro::Task<Result> open(Opening opening)
{
    const Answer<Result> answer;
    start(opening, answer);
    co_return co_await answer.future();
}

Result openAndWait(const Opening &opening)
{
    const Answer<Result> answer;
    start(opening, answer);
    return answer.future().result();
}

} // namespace vantrel
