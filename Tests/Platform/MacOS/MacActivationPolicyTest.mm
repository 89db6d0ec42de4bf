#include "Platform/MacOS/MacActivationPolicy.h"

#include "Tests/Contract/ActivationPolicyContract.h"

#include <QtGlobal>

#import <AppKit/AppKit.h>

namespace vantrel {
namespace {

/// The program of these tests, which is listed as before once they have ended.
class MacActivationPolicySystem {
public:
    MacActivationPolicySystem() : former_([NSApplication.sharedApplication activationPolicy]) {}
    ~MacActivationPolicySystem() { [NSApplication.sharedApplication setActivationPolicy:former_]; }
    Q_DISABLE_COPY_MOVE(MacActivationPolicySystem)

    ActivationPolicy &policy() { return policy_; }
    static bool isRegular() { return [NSApp activationPolicy] == NSApplicationActivationPolicyRegular; }
    static bool isAccessory() { return [NSApp activationPolicy] == NSApplicationActivationPolicyAccessory; }

private:
    NSApplicationActivationPolicy former_;
    MacActivationPolicy policy_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, ActivationPolicyContract, MacActivationPolicySystem);

} // namespace test
} // namespace vantrel
