#include "Platform/MacOS/MacAccessibilityTrust.h"
#include "Platform/MacOS/MacAutomationPermission.h"
#include "Tests/Contract/AccessibilityTrustContract.h"
#include "Tests/Contract/AutomationPermissionContract.h"
#include "Tests/Platform/MacOS/StandInBundle.h"
#include "Tests/VantrelKit/Samples.h"

#include <QCoreApplication>

#include <CoreGraphics/CGEvent.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Who runs the tests of hotkeys has granted this already. It shows in the right to post events, for which nobody is
/// asked here.
class MacTrustedSystem {
public:
    MacTrustedSystem()
    {
        EXPECT_TRUE(CGPreflightPostEventAccess())
            << "Let the program that starts the tests control this computer: System Settings, Privacy & Security, "
               "Accessibility.";
    }

    AccessibilityTrust &trust() { return trust_; }

private:
    MacAccessibilityTrust trust_;
};

/// For what doesn't run, the system asks nobody.
class MacAutomationSystem {
public:
    AutomationPermission &permission() { return permission_; }
    static QString idle() { return u"com.slimjet.browser"_s; }
    static QString unknown() { return test::unknownBrowser; }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
    test::StandInBundle bundle_{idle()};
    MacAutomationPermission permission_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, AccessibilityTrustContract, MacTrustedSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, AutomationPermissionContract, MacAutomationSystem);

} // namespace test
} // namespace vantrel
