#include "Platform/MacOS/ServiceLoginItem.h"

#include "Tests/Contract/LoginItemContract.h"

#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

namespace vantrel {
namespace {

/// The program of these tests as a login item of the user's, which it is no longer once they have ended. It has to be
/// an application.
class ServiceLoginItemSystem {
public:
    ServiceLoginItemSystem()
    {
        EXPECT_NE(NSBundle.mainBundle.bundleIdentifier, nil) << "This program is not in a bundle.";
        change(false);
    }
    ~ServiceLoginItemSystem() { [SMAppService.mainAppService unregisterAndReturnError:nil]; }
    Q_DISABLE_COPY_MOVE(ServiceLoginItemSystem)

    LoginItem &item() { return item_; }
    static bool startsProgram() { return SMAppService.mainAppService.status == SMAppServiceStatusEnabled; }

    static void change(bool isOn)
    {
        if (startsProgram() == isOn)
            return;
        NSError *error = nil;
        const BOOL isDone = isOn ? [SMAppService.mainAppService registerAndReturnError:&error]
                                 : [SMAppService.mainAppService unregisterAndReturnError:&error];
        // What was never registered can't be taken away, and nothing is lost.
        EXPECT_TRUE(isDone || !isOn) << error.localizedDescription.UTF8String;
    }

private:
    ServiceLoginItem item_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, LoginItemContract, ServiceLoginItemSystem);

} // namespace test
} // namespace vantrel
