#include "Vantrel/Interface/NoTrayNotice.h"

#include "Tests/Fakes/FakeActivationPolicy.h"
#include "Tests/Fakes/FakeUserDefaults.h"
#include "Tests/Vantrel/Interface/OpenBox.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::openBox;

TEST(NoTrayNotice, IsShownOnceEverAndInFront)
{
    test::FakeUserDefaults defaults;
    test::FakeActivationPolicy policy;
    bool wasShown = false;
    policy.onActivate([&] { wasShown = openBox() && openBox()->isVisible(); });
    NoTrayNotice(defaults, policy).showOnce();
    ASSERT_NE(openBox(), nullptr);
    EXPECT_TRUE(openBox()->isVisible());
    EXPECT_FALSE(openBox()->isModal());
    EXPECT_TRUE(openBox()->informativeText().contains(u"“vantrel menu”"_s));
    EXPECT_EQ(policy.activations(), 1);
    EXPECT_FALSE(wasShown);
    QTest::keyClick(openBox(), Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(openBox(), nullptr);

    NoTrayNotice(defaults, policy).showOnce();
    EXPECT_EQ(openBox(), nullptr);
    EXPECT_EQ(policy.activations(), 1);
}

} // namespace
} // namespace vantrel
