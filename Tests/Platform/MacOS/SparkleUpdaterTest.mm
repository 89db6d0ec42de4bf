#include "Platform/MacOS/SparkleUpdater.h"

#include "Tests/Contract/UpdaterContract.h"

#import <Foundation/Foundation.h>

namespace vantrel {
namespace {

/// The program of these tests, whose property list names a list of updates. It is never asked for.
class SparkleSystem {
public:
    SparkleSystem() { forget(); }
    ~SparkleSystem() { forget(); }
    Q_DISABLE_COPY_MOVE(SparkleSystem)

    Updater &updater() { return updater_; }

private:
    /// What the framework keeps for this program.
    static void forget()
    {
        if (NSString *identifier = NSBundle.mainBundle.bundleIdentifier)
            [NSUserDefaults.standardUserDefaults removePersistentDomainForName:identifier];
    }

    SparkleUpdater updater_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, UpdaterContract, SparkleSystem);

} // namespace test
} // namespace vantrel
