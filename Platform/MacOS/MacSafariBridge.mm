#include "Platform/MacOS/MacSafariBridge.h"

#include "Platform/MacOS/BridgedSafari.h"
#include "Platform/MacOS/Opening.h"

#import <AppKit/AppKit.h>

namespace vantrel {

std::shared_ptr<SafariApplication> MacSafariBridge::connect(const QString &bundleID, Settings settings)
{
    @autoreleasepool {
        // The bridge makes an application of everything that is installed. Its objects are for their own queue alone.
        if (![NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:bundleID.toNSString()])
            return nullptr;
    }
    return std::make_shared<BridgedSafari>(bundleID, std::move(settings));
}

QCoro::Task<std::expected<void, PlatformError>> MacSafariBridge::startHidden(QUrl application)
{
    return open({.application = application, .appearance = Opening::Appearance::hidden});
}

} // namespace vantrel
