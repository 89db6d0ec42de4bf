#include "Platform/MacOS/SparkleUpdater.h"

#include "Platform/MacOS/UpdaterFactory.h"

#import <Foundation/Foundation.h>
#import <Sparkle/Sparkle.h>

using namespace vantrel;

/// Follows one property of the updater until it is let go of.
@interface VantrelUpdateObservation : NSObject
- (instancetype)initWithUpdater:(SPUUpdater *)updater changed:(std::function<void(bool)>)changed;
- (void)stop;
@end

@implementation VantrelUpdateObservation {
    SPUUpdater *_updater;
    std::function<void(bool)> _changed;
}

static NSString *const observedKeyPath = @"canCheckForUpdates";

- (instancetype)initWithUpdater:(SPUUpdater *)updater changed:(std::function<void(bool)>)changed
{
    self = [super init];
    if (self) {
        _updater = updater;
        _changed = std::move(changed);
        [updater addObserver:self
                  forKeyPath:observedKeyPath
                     options:NSKeyValueObservingOptionInitial | NSKeyValueObservingOptionNew
                     context:nullptr];
    }
    return self;
}

- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id> *)change
                       context:(void *)context
{
    if (NSThread.isMainThread)
        [self tell];
    else
        dispatch_async(dispatch_get_main_queue(), ^{
          [self tell];
        });
}

- (void)tell
{
    if (_changed)
        _changed(_updater.canCheckForUpdates == YES);
}

- (void)stop
{
    [_updater removeObserver:self forKeyPath:observedKeyPath context:nullptr];
    _changed = nullptr;
}

@end

namespace vantrel {

struct SparkleUpdater::Native {
    SPUUpdater *updater()
    {
        if (!controller) {
            controller = [[SPUStandardUpdaterController alloc] initWithStartingUpdater:YES
                                                                       updaterDelegate:nil
                                                                    userDriverDelegate:nil];
        }
        return controller.updater;
    }

    SPUStandardUpdaterController *controller = nil;
    VantrelUpdateObservation *observation = nil;
};

SparkleUpdater::SparkleUpdater() : native_(std::make_unique<Native>()) {}

SparkleUpdater::~SparkleUpdater()
{
    [native_->observation stop];
}

bool SparkleUpdater::canCheckForUpdates() const
{
    return native_->updater().canCheckForUpdates == YES;
}

void SparkleUpdater::observeCanCheckForUpdates(std::function<void(bool canCheck)> changed)
{
    native_->observation = [[VantrelUpdateObservation alloc] initWithUpdater:native_->updater()
                                                                     changed:std::move(changed)];
}

void SparkleUpdater::checkForUpdates()
{
    [native_->updater() checkForUpdates];
}

bool SparkleUpdater::automaticallyChecksForUpdates() const
{
    return native_->updater().automaticallyChecksForUpdates == YES;
}

void SparkleUpdater::setAutomaticallyChecksForUpdates(bool checks)
{
    native_->updater().automaticallyChecksForUpdates = checks;
}

std::unique_ptr<Updater> makeUpdater()
{
    return std::make_unique<SparkleUpdater>();
}

} // namespace vantrel
