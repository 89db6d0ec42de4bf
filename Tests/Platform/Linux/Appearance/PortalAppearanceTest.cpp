#include "Platform/Linux/PortalAppearance.h"

#include "Tests/Platform/Linux/Appearance/SettingsStandIn.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::eventually;

class PortalAppearanceTest : public testing::Test {
protected:
    void observe()
    {
        appearance_.observe([this](bool isDark) { heard_.append(isDark); });
    }

    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
    test::PrivateBus bus_;
    test::OwnConnection connection_{bus_.address()};
    PortalAppearance appearance_{*connection_};
    QList<bool> heard_;
};

TEST_F(PortalAppearanceTest, SaysWhatTheDesktopsSettingsSayAndFollowsThem)
{
    test::SettingsStandIn settings(bus_, 1);
    observe();
    ASSERT_TRUE(eventually([this] { return !heard_.isEmpty(); }));
    EXPECT_EQ(heard_, QList<bool>{true});
    settings.change(u"org.freedesktop.appearance"_s, u"color-scheme"_s, 2);
    ASSERT_TRUE(eventually([this] { return heard_.size() == 2; }));
    EXPECT_EQ(heard_, (QList<bool>{true, false}));
    settings.change(u"org.freedesktop.appearance"_s, u"accent-color"_s, 1);
    settings.change(u"org.gnome.desktop.interface"_s, u"color-scheme"_s, 1);
    settings.change(u"org.freedesktop.appearance"_s, u"color-scheme"_s, 1);
    ASSERT_TRUE(eventually([this] { return heard_.size() > 2; }));
    EXPECT_EQ(heard_, (QList<bool>{true, false, true}));
}

TEST_F(PortalAppearanceTest, NoPreferenceIsLight)
{
    const test::SettingsStandIn settings(bus_, 0);
    observe();
    ASSERT_TRUE(eventually([this] { return !heard_.isEmpty(); }));
    EXPECT_EQ(heard_, QList<bool>{false});
}

TEST_F(PortalAppearanceTest, AnErrorIsNoAnswer)
{
    test::SettingsStandIn settings(bus_, std::nullopt);
    observe();
    ASSERT_TRUE(eventually([&] { return settings.questions() == 1; }));
    connection_.synchronize();
    QCoreApplication::processEvents();
    EXPECT_TRUE(heard_.isEmpty());
}

TEST(PortalAppearance, WithoutABusNothingIsSaid)
{
    PortalAppearance appearance{QDBusConnection(QString())};
    bool isHeard = false;
    appearance.observe([&](bool) { isHeard = true; });
    EXPECT_FALSE(isHeard);
}

} // namespace
} // namespace vantrel
