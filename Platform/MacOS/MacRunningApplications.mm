#include "Platform/MacOS/MacRunningApplications.h"

#import <AppKit/AppKit.h>

namespace vantrel {

struct MacRunningApplications::Observation {
    QStringList bundleIDs;
    Terminated terminated;
    id<NSObject> token = nil;

    void take(NSNotification *notification) const
    {
        NSRunningApplication *application = notification.userInfo[NSWorkspaceApplicationKey];
        const QString bundleID = QString::fromNSString(application.bundleIdentifier);
        if (bundleIDs.contains(bundleID))
            terminated(bundleID, hasRunningInstance(bundleID));
    }
};

MacRunningApplications::MacRunningApplications() = default;

MacRunningApplications::~MacRunningApplications()
{
    if (observation_)
        [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:observation_->token];
}

bool MacRunningApplications::isRunning(const QString &bundleID) const
{
    return hasRunningInstance(bundleID);
}

void MacRunningApplications::watch(const QStringList &bundleIDs, Terminated terminated)
{
    observation_ = std::make_shared<Observation>();
    observation_->bundleIDs = bundleIDs;
    observation_->terminated = std::move(terminated);
    // What is on its way to the main queue when the observer is removed is to reach nobody.
    const std::weak_ptr<const Observation> weak = observation_;
    observation_->token = [NSWorkspace.sharedWorkspace.notificationCenter
        addObserverForName:NSWorkspaceDidTerminateApplicationNotification
                    object:nil
                     queue:NSOperationQueue.mainQueue
                usingBlock:^(NSNotification *notification) {
                  if (const auto observation = weak.lock())
                      observation->take(notification);
                }];
}

bool hasRunningInstance(const QString &bundleID)
{
    @autoreleasepool {
        NSString *identifier = bundleID.toNSString();
        for (NSRunningApplication *application in
             [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier]) {
            // The system compares without regard to case, and knows an instance for a while after its end.
            if (!application.terminated && [application.bundleIdentifier isEqualToString:identifier])
                return true;
        }
        return false;
    }
}

} // namespace vantrel
