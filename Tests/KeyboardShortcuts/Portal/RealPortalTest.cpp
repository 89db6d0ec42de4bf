#include "Tests/KeyboardShortcuts/Portal/FakePortalBackend.h"
#include "Tests/KeyboardShortcuts/Portal/PortalFixture.h"

#include <QDBusConnectionInterface>

#include <csignal>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::eventually, test::FakePortalBackend;
using Listening = HotKeyPort::Listening;

/// The desktop portal that is installed, with a desktop that the test plays. It is started by the bus when the program
/// asks for it.
class RealPortalTest : public test::PortalFixture {
protected:
    // Other services of the portal, without which it works too.
    RealPortalTest()
        : PortalFixture({u"org.freedesktop.portal.Documents"_s, u"org.freedesktop.impl.portal.PermissionStore"_s})
    {
        folder_.write(u"portals/fake.portal"_s, "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.fake\n"
                                                "Interfaces=org.freedesktop.impl.portal.GlobalShortcuts\nUseIn=fake\n");
        backend_.emplace(*bus_);
    }

    /// The process of the portal.
    [[nodiscard]] pid_t portal()
    {
        const QDBusReply<uint> pid = (*connection_)->interface()->servicePid(u"org.freedesktop.portal.Desktop"_s);
        EXPECT_TRUE(pid.isValid()) << "The portal doesn't run: install the package xdg-desktop-portal.";
        return pid.isValid() ? static_cast<pid_t>(pid.value()) : 0;
    }

    void pressAndReleaseAreHeard()
    {
        backend_->press(u"key-1800-0"_s);
        backend_->release(u"key-1800-0"_s);
        EXPECT_TRUE(hears({u"press 1"_s, u"release 1"_s}));
    }

    const QString bindBoth_ = u"BindShortcuts key-1800-0=CTRL+ALT+a key-300-23=SHIFT+LOGO+p"_s;
    std::optional<FakePortalBackend> backend_;
};

TEST_F(RealPortalTest, KeysAreBoundHeardAndGivenBack)
{
    startWithTwoKeys();
    ASSERT_TRUE(isBound()) << "Install the package xdg-desktop-portal.";
    EXPECT_EQ(backend_->calls(), QStringList({u"CreateSession"_s, bindBoth_}));
    EXPECT_EQ(keys_->availability(), Availability::available);
    EXPECT_EQ(keys_->grantedTrigger(1), u"Press CTRL+ALT+a"_s);
    pressAndReleaseAreHeard();
    keys_->remove(2);
    ASSERT_TRUE(eventually([this] { return backend_->calls().contains(u"BindShortcuts key-1800-0=CTRL+ALT+a"_s); }));
    EXPECT_TRUE(backend_->calls().contains(u"Close"_s));
    ASSERT_TRUE(isBound());
    pressAndReleaseAreHeard();
    keys_.reset();
    EXPECT_TRUE(eventually([this] { return backend_->calls().count(u"Close"_s) == 2; }));
}

TEST_F(RealPortalTest, ARefusalIsTold)
{
    backend_->setResponse(1);
    startWithTwoKeys();
    EXPECT_TRUE(isAvailability(Availability::refused));
}

TEST_F(RealPortalTest, ADesktopWithoutShortcutsIsTold)
{
    folder_.write(u"portals/fake.portal"_s, "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.fake\n"
                                            "Interfaces=org.freedesktop.impl.portal.Settings\nUseIn=fake\n");
    startWithTwoKeys();
    EXPECT_TRUE(isAvailability(Availability::notAvailable));
}

TEST_F(RealPortalTest, ASessionThatTheDesktopClosesIsMadeAnew)
{
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    backend_->closeSession();
    ASSERT_TRUE(eventually([this] { return backend_->calls().count(bindBoth_) == 2; }));
    ASSERT_TRUE(isBound());
    pressAndReleaseAreHeard();
}

TEST_F(RealPortalTest, APortalThatIsKilledIsStartedAgain)
{
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    ASSERT_EQ(kill(portal(), SIGKILL), 0);
    ASSERT_TRUE(eventually([this] { return backend_->calls().count(bindBoth_) == 2; }));
    ASSERT_TRUE(isBound());
    pressAndReleaseAreHeard();
}

TEST_F(RealPortalTest, ADesktopThatForgetsItsSessionsIsAskedAgainWhenItReturns)
{
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    backend_.reset();
    ASSERT_TRUE(isAvailability(Availability::refused));
    EXPECT_EQ(keys_->grantedTrigger(1), std::nullopt);
    backend_.emplace(*bus_);
    ASSERT_TRUE(isBound());
    EXPECT_EQ(keys_->availability(), Availability::available);
    EXPECT_EQ(backend_->calls().last(), bindBoth_);
    pressAndReleaseAreHeard();
}

} // namespace
} // namespace vantrel
