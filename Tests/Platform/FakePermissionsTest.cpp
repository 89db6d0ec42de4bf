#include "Tests/Fakes/FakePermissions.h"

#include "Tests/Contract/AccessibilityTrustContract.h"
#include "Tests/Contract/AutomationPermissionContract.h"
#include "Tests/VantrelKit/Samples.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

class FakeTrustedSystem {
public:
    AccessibilityTrust &trust() { return trust_; }

private:
    test::FakeAccessibilityTrust trust_;
};

class FakeAutomationSystem {
public:
    AutomationPermission &permission() { return permission_; }
    static QString idle() { return test::chrome; }
    static QString unknown() { return test::unknownBrowser; }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
    test::FakeAutomationPermission permission_;
};

TEST(FakeAccessibilityTrust, OnlyWhoIsNotTrustedIsAskedAndOnlyWhenThatIsWanted)
{
    test::FakeAccessibilityTrust trust;
    EXPECT_TRUE(trust.isTrustedElseAsk());
    trust.setTrusted(false);
    EXPECT_FALSE(trust.isTrusted());
    EXPECT_EQ(trust.questions(), 0);
    EXPECT_FALSE(trust.isTrustedElseAsk());
    EXPECT_EQ(trust.questions(), 1);
}

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, AccessibilityTrustContract, FakeTrustedSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, AutomationPermissionContract, FakeAutomationSystem);

} // namespace test
} // namespace vantrel
