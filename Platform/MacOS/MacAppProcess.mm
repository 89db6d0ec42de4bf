#include "Platform/MacOS/MacAppProcess.h"

#include "Platform/MacOS/InstancePort.h"
#include "Platform/MacOS/Opening.h"

#include <QCoreApplication>

#import <AppKit/AppKit.h>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(AppProcess)
};

/// The bundle that this command lies in, else the one that is installed; empty when there is neither.
QUrl appBundle()
{
    @autoreleasepool {
        NSString *identifier = @"app.kestrune.Vantrel";
        NSBundle *own = NSBundle.mainBundle;
        if ([own.bundleIdentifier isEqualToString:identifier])
            return QUrl::fromNSURL(own.bundleURL);
        NSURL *installed = [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:identifier];
        return installed ? QUrl::fromNSURL(installed) : QUrl();
    }
}

} // namespace

std::expected<bool, PlatformError> MacAppProcess::send(InstanceRequest request)
{
    return InstancePort::send(InstancePort::defaultName(), request);
}

std::expected<void, PlatformError> MacAppProcess::start(const InstanceRequest &request)
{
    const QUrl bundle = appBundle();
    if (bundle.isEmpty()) {
        //: Error when the command line can't find the app.
        return std::unexpected(PlatformError{Texts::tr("Vantrel.app can't be found. Put it into Applications.")});
    }
    return openAndWait(
        {.application = bundle, .arguments = appArguments(request), .appearance = Opening::Appearance::background});
}

PlatformError MacAppProcess::become()
{
    if (const auto started = start({}); !started)
        return started.error();
    // The app is another process. Whoever waits for this one sees no difference.
    std::exit(EXIT_SUCCESS);
}

std::unique_ptr<AppProcess> AppProcess::create()
{
    return std::make_unique<MacAppProcess>();
}

} // namespace vantrel
