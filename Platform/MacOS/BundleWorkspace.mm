#include "Platform/MacOS/BundleWorkspace.h"

#include "Platform/BundleApplication.h"
#include "Platform/MacOS/Opening.h"
#include "VantrelKit/KnownBrowsers.h"

#include <QCoreApplication>
#include <QFileInfo>

#import <AppKit/AppKit.h>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(BundleWorkspace)
};

} // namespace

std::optional<Application> BundleWorkspace::applicationWithBundleIdentifier(const QString &bundleID) const
{
    if (searchedNames(bundleID).isEmpty())
        return std::nullopt;
    @autoreleasepool {
        NSURL *found = [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:bundleID.toNSString()];
        if (!found)
            return std::nullopt;
        return bundleApplication(QUrl::fromNSURL(found));
    }
}

QStringList BundleWorkspace::searchedNames(const QString &bundleID) const
{
    return KnownBrowsers::family(bundleID) ? QStringList(bundleID) : QStringList();
}

std::expected<QStringList, PlatformError> BundleWorkspace::commandLine(const QUrl &application,
                                                                       const QStringList &arguments) const
{
    @autoreleasepool {
        NSBundle *bundle = [NSBundle bundleWithURL:application.toNSURL()];
        const QString program = QString::fromNSString(bundle.executableURL.path);
        // Bundles are remembered as they were when they were first asked for.
        if (QFileInfo(program).isExecutable())
            return QStringList(program) + arguments;
    }
    //: Error when a browser was removed or damaged since it was found. The placeholder is its path.
    return std::unexpected(
        PlatformError{Texts::tr("%1 is no longer a usable application. Check that the browser is installed.")
                          .arg(application.toLocalFile())});
}

QCoro::Task<std::expected<void, PlatformError>> BundleWorkspace::openApplication(QUrl application,
                                                                                 QStringList arguments)
{
    if (const auto line = commandLine(application, {}); !line)
        co_return std::unexpected(line.error());
    const Opening opening{.application = application, .arguments = arguments, .instance = Opening::Instance::another};
    co_return co_await open(opening);
}

} // namespace vantrel
