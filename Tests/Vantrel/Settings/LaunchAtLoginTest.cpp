#include "Vantrel/Settings/LaunchAtLogin.h"

#include "Tests/Fakes/FakeAlert.h"
#include "Tests/Fakes/FakeLoginItem.h"
#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(LaunchAtLogin, SwitchesOnAndOff)
{
    test::FakeLoginItem item;
    test::FakeAlert alert;
    LaunchAtLogin model(item, alert);
    EXPECT_FALSE(model.isEnabled());
    model.setEnabled(true);
    EXPECT_TRUE(item.isEnabled());
    EXPECT_TRUE(model.isEnabled());
    model.setEnabled(false);
    EXPECT_FALSE(model.isEnabled());
    EXPECT_TRUE(alert.shown().isEmpty());
}

TEST(LaunchAtLogin, ARefusalIsShownAndNothingHasChanged)
{
    test::FakeLoginItem item;
    test::FakeAlert alert;
    LaunchAtLogin model(item, alert);
    item.refuse(u"Read-only file system"_s);
    model.setEnabled(true);
    EXPECT_FALSE(model.isEnabled());
    EXPECT_EQ(alert.shown(), QStringList{u"Vantrel Can't Be Opened at Login / Read-only file system"_s});
    item.change(true);
    model.setEnabled(false);
    EXPECT_TRUE(model.isEnabled());
    EXPECT_EQ(alert.shown().last(), u"Vantrel Can't Be Kept from Opening at Login / Read-only file system"_s);
}

} // namespace
} // namespace vantrel
