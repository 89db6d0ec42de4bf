#include "Vantrel/SettingsWindows.h"

#include "Tests/VantrelKit/Printing.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class RecordedPolicy final : public ActivationPolicy {
public:
    void becomeRegular() override { calls_.append(u"regular"_s); }
    void becomeAccessory() override { calls_.append(u"accessory"_s); }
    void activate() override { calls_.append(u"activate"_s); }

    [[nodiscard]] QStringList takeCalls() { return std::exchange(calls_, {}); }

private:
    QStringList calls_;
};

TEST(SettingsWindows, TheFirstWindowMakesARegularApplicationAndTheLastAnAccessory)
{
    RecordedPolicy policy;
    SettingsWindows windows(policy);
    windows.windowAppeared();
    EXPECT_EQ(policy.takeCalls(), QStringList({u"regular"_s, u"activate"_s}));
    windows.windowDisappeared();
    EXPECT_EQ(policy.takeCalls(), QStringList(u"accessory"_s));
}

TEST(SettingsWindows, ClosingOneOfTwoChangesNothing)
{
    RecordedPolicy policy;
    SettingsWindows windows(policy);
    windows.windowAppeared();
    windows.windowAppeared();
    EXPECT_EQ(policy.takeCalls().size(), 4);
    windows.windowDisappeared();
    EXPECT_EQ(policy.takeCalls(), QStringList());
    windows.windowDisappeared();
    EXPECT_EQ(policy.takeCalls(), QStringList(u"accessory"_s));
}

TEST(SettingsWindows, TheCountNeverFallsBelowZero)
{
    RecordedPolicy policy;
    SettingsWindows windows(policy);
    windows.windowDisappeared();
    EXPECT_EQ(windows.count(), 0);
    EXPECT_EQ(policy.takeCalls(), QStringList());
    windows.windowAppeared();
    EXPECT_EQ(windows.count(), 1);
}

} // namespace
} // namespace vantrel
