#include "KeyboardShortcuts/Portal/PortalHotKeys.h"

#include "Tests/KeyboardShortcuts/Portal/FakePortal.h"
#include "Tests/KeyboardShortcuts/Portal/PortalFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::FakePortal, test::eventually;
using test::keyA, test::keyF13, test::keyP, test::command, test::control, test::option, test::shift;
using Listening = HotKeyPort::Listening;

class PortalHotKeysTest : public test::PortalFixture {
protected:
    /// Waits until the portal has heard all that the program has said so far, and the program has what came of it.
    void settle()
    {
        QCoreApplication::processEvents();
        (*connection_).synchronize();
        QCoreApplication::processEvents();
        (*connection_).synchronize();
        QCoreApplication::processEvents();
    }

    const QString a_ = u"key-1800-0"_s;
    const QString p_ = u"key-300-23"_s;
    const QString bindBoth_ = u"BindShortcuts key-1800-0=CTRL+ALT+a key-300-23=SHIFT+LOGO+p"_s;
};

TEST_F(PortalHotKeysTest, AllKeysAreBoundAtOnceInOneSession)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    EXPECT_EQ(keys_->availability(), Availability::unknown);
    EXPECT_EQ(keys_->grantedTrigger(1), std::nullopt);
    ASSERT_TRUE(isBound());
    EXPECT_EQ(portal.calls(), QStringList({u"Get version"_s, u"CreateSession"_s, bindBoth_}));
    EXPECT_EQ(portal.descriptions(), QStringList({u"Open 1800+0"_s, u"Open 300+23"_s}));
    EXPECT_EQ(keys_->availability(), Availability::available);
    EXPECT_EQ(keys_->grantedTrigger(1), u"Press CTRL+ALT+a"_s);
    EXPECT_EQ(keys_->grantedTrigger(2), u"Press SHIFT+LOGO+p"_s);
    EXPECT_EQ(keys_->grantedTrigger(3), std::nullopt);
}

TEST_F(PortalHotKeysTest, PressesAndReleasesAreHeardOnceEach)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    portal.press(a_);
    portal.press(a_);
    portal.press(p_);
    portal.release(a_);
    portal.release(a_);
    portal.release(p_);
    portal.press(u"key-0-0"_s);
    portal.pressElsewhere(p_);
    portal.press(a_);
    EXPECT_TRUE(hears({u"press 1"_s, u"press 2"_s, u"release 1"_s, u"release 2"_s, u"press 1"_s}));
}

TEST_F(PortalHotKeysTest, AHostProgramSaysWhoItIsBeforeAnythingElse)
{
    FakePortal portal(*bus_, {.hasRegistry = true});
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    EXPECT_EQ(portal.calls(),
              QStringList({u"Register app.kestrune.Vantrel"_s, u"Get version"_s, u"CreateSession"_s, bindBoth_}));
}

TEST_F(PortalHotKeysTest, ALaterVersionOfTheInterfaceIsUsedTheSameWay)
{
    FakePortal portal(*bus_, {.version = 2});
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    portal.press(a_);
    portal.release(a_);
    EXPECT_TRUE(hears({u"press 1"_s, u"release 1"_s}));
}

TEST_F(PortalHotKeysTest, ChangesOfOneTurnAreOneRequest)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    keys_->remove(1);
    keys_->remove(2);
    add(3, keyF13, control);
    add(4, keyA, 0);
    ASSERT_TRUE(isBound(4));
    EXPECT_EQ(portal.calls().last(), u"BindShortcuts key-0-0=a key-1000-69=CTRL+XF86Tools"_s);
    EXPECT_EQ(portal.count(u"BindShortcuts"_s), 2);
    EXPECT_EQ(portal.count(u"CreateSession"_s), 2) << "The shortcuts of a session can only be bound once.";
    EXPECT_EQ(portal.count(u"Close"_s), 1);
    portal.press(u"key-0-0"_s);
    EXPECT_TRUE(hears({u"press 4"_s}));
}

TEST_F(PortalHotKeysTest, WhatIsTheSameAgainAtTheEndOfATurnIsNoChange)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    keys_->listen(Listening::nothing);
    keys_->remove(1);
    add(7, keyA, control | option);
    keys_->listen(Listening::hotKeys);
    settle();
    EXPECT_EQ(portal.count(u"CreateSession"_s), 1);
    EXPECT_EQ(portal.count(u"Close"_s), 0);
    portal.press(a_);
    EXPECT_TRUE(hears({u"press 7"_s}));
}

TEST_F(PortalHotKeysTest, TwoIdsOfOneCombinationAreOneShortcutOfThePortal)
{
    FakePortal portal(*bus_);
    add(3, keyP, command | shift);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    EXPECT_EQ(portal.calls().last(), bindBoth_);
    portal.press(p_);
    EXPECT_TRUE(hears({u"press 2"_s, u"press 3"_s}));
}

TEST_F(PortalHotKeysTest, WhileAMenuIsOpenTheKeysAreHeardAsRawOnes)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    keys_->remove(1);
    keys_->remove(2);
    keys_->listen(Listening::rawKeys);
    settle();
    portal.press(a_);
    portal.release(a_);
    EXPECT_TRUE(hears({u"raw press 1800+0"_s, u"raw release 1800+0"_s}));
    add(1, keyA, control | option);
    add(2, keyP, command | shift);
    keys_->listen(Listening::hotKeys);
    settle();
    portal.press(p_);
    portal.release(p_);
    EXPECT_TRUE(hears({u"press 2"_s, u"release 2"_s}));
    EXPECT_EQ(portal.count(u"BindShortcuts"_s), 1) << "The user is not asked again after each menu.";
    EXPECT_EQ(portal.count(u"Close"_s), 0);
}

TEST_F(PortalHotKeysTest, AKeyThatIsHeldWhileAMenuOpensIsReleasedThere)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    portal.press(a_);
    EXPECT_TRUE(hears({u"press 1"_s}));
    keys_->remove(1);
    keys_->remove(2);
    keys_->listen(Listening::rawKeys);
    portal.release(a_);
    EXPECT_TRUE(hears({u"raw release 1800+0"_s}));
}

TEST_F(PortalHotKeysTest, WhenNothingIsHeardTheKeysAreTheUsersAgain)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    keys_->listen(Listening::nothing);
    ASSERT_TRUE(eventually([&] { return portal.count(u"Close"_s) == 1; }));
    EXPECT_EQ(keys_->grantedTrigger(1), std::nullopt);
    EXPECT_EQ(portal.count(u"BindShortcuts"_s), 1);
    keys_->listen(Listening::hotKeys);
    ASSERT_TRUE(isBound());
    EXPECT_EQ(portal.calls().last(), bindBoth_);
}

TEST_F(PortalHotKeysTest, WithoutKeysThePortalIsNotAskedForAny)
{
    FakePortal portal(*bus_);
    keys_->listen(Listening::hotKeys);
    keys_->start();
    ASSERT_TRUE(isAvailability(Availability::available));
    settle();
    EXPECT_EQ(portal.calls(), QStringList(u"Get version"_s));
}

TEST_F(PortalHotKeysTest, NothingIsHeardNorBoundBeforeItListens)
{
    FakePortal portal(*bus_);
    add(1, keyA, control | option);
    keys_->start();
    ASSERT_TRUE(isAvailability(Availability::available));
    settle();
    EXPECT_EQ(portal.calls(), QStringList(u"Get version"_s));
    keys_->listen(Listening::hotKeys);
    EXPECT_TRUE(isBound());
}

TEST_F(PortalHotKeysTest, KeysThatNoKeyboardHasAreRefused)
{
    constexpr std::uint32_t function = 0x3f;
    EXPECT_EQ(keys_->add(1, function, control), std::unexpected(EINVAL));
    EXPECT_EQ(keys_->add(1, 0xffff, control), std::unexpected(EINVAL));
}

TEST_F(PortalHotKeysTest, TheKeysThatWereGrantedAreTold)
{
    FakePortal portal(*bus_);
    portal.grant(a_, u"Press F7"_s);
    portal.grant(p_, std::nullopt);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    EXPECT_EQ(keys_->grantedTrigger(1), u"Press F7"_s);
    EXPECT_EQ(keys_->grantedTrigger(2), u""_s) << "It has no keys.";
    changes_ = 0;
    portal.changeTrigger(p_, u"Press F8"_s);
    ASSERT_TRUE(eventually([&] { return changes_ > 0; }));
    EXPECT_EQ(keys_->grantedTrigger(1), u"Press F7"_s);
    EXPECT_EQ(keys_->grantedTrigger(2), u"Press F8"_s);
}

TEST_F(PortalHotKeysTest, AnActivationTokenIsForTheProgramThatIsStarted)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    portal.press(a_, {{u"activation_token"_s, u"token-1"_s}});
    portal.release(a_);
    EXPECT_TRUE(hears({u"press 1"_s, u"release 1"_s}));
    EXPECT_EQ(source_.apply({}).value(u"XDG_ACTIVATION_TOKEN"_s), u"token-1"_s);
}

TEST_F(PortalHotKeysTest, WhatTheUserRefusesIsNotAskedForAgainUntilItChanges)
{
    FakePortal portal(*bus_, {.bound = 1});
    startWithTwoKeys();
    ASSERT_TRUE(isAvailability(Availability::refused));
    EXPECT_EQ(keys_->grantedTrigger(1), std::nullopt);
    keys_->listen(Listening::rawKeys);
    settle();
    keys_->listen(Listening::hotKeys);
    settle();
    keys_->listen(Listening::nothing);
    settle();
    keys_->listen(Listening::hotKeys);
    settle();
    EXPECT_EQ(portal.count(u"BindShortcuts"_s), 1);
    EXPECT_EQ(portal.count(u"Close"_s), 1);
    portal.options().bound = 0;
    add(3, keyF13, 0);
    ASSERT_TRUE(isBound(3));
    EXPECT_EQ(keys_->availability(), Availability::available);
}

TEST_F(PortalHotKeysTest, ARefusedSessionIsARefusal)
{
    FakePortal portal(*bus_, {.created = 2});
    startWithTwoKeys();
    EXPECT_TRUE(isAvailability(Availability::refused));
    EXPECT_EQ(portal.count(u"BindShortcuts"_s), 0);
}

TEST_F(PortalHotKeysTest, AProgramThatThePortalDoesNotKnowIsRefused)
{
    FakePortal portal(*bus_, {.refusal = u"org.freedesktop.portal.Error.NotAllowed"_s});
    startWithTwoKeys();
    EXPECT_TRUE(isAvailability(Availability::refused));
}

TEST_F(PortalHotKeysTest, AnErrorOfThePortalIsNoCrash)
{
    FakePortal portal(*bus_, {.refusal = u"org.freedesktop.DBus.Error.Failed"_s});
    startWithTwoKeys();
    EXPECT_TRUE(isAvailability(Availability::notAvailable));
}

TEST_F(PortalHotKeysTest, ASessionWithoutAPathIsNone)
{
    FakePortal portal(*bus_, {.sessionPath = {}});
    startWithTwoKeys();
    EXPECT_TRUE(isAvailability(Availability::notAvailable));
}

TEST_F(PortalHotKeysTest, APortalWithoutTheInterfaceIsNone)
{
    const FakePortal portal(*bus_, {.version = std::nullopt});
    startWithTwoKeys();
    EXPECT_TRUE(isAvailability(Availability::notAvailable));
}

TEST_F(PortalHotKeysTest, WithoutAPortalItSaysSoAndOneThatComesLaterIsUsed)
{
    startWithTwoKeys();
    ASSERT_TRUE(isAvailability(Availability::notAvailable));
    EXPECT_EQ(changes_, 1);
    FakePortal portal(*bus_);
    ASSERT_TRUE(isBound());
    EXPECT_EQ(keys_->availability(), Availability::available);
    portal.press(a_);
    EXPECT_TRUE(hears({u"press 1"_s}));
}

TEST_F(PortalHotKeysTest, APortalThatRestartsGetsAllAgain)
{
    std::optional<FakePortal> portal;
    portal.emplace(*bus_, FakePortal::Options{.hasRegistry = true});
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    for (int time = 0; time < 5; ++time) {
        portal->press(a_);
        EXPECT_TRUE(hears({u"press 1"_s})) << "What was held when the portal went is pressed anew.";
        portal.reset();
        ASSERT_TRUE(isAvailability(Availability::notAvailable));
        EXPECT_EQ(keys_->grantedTrigger(1), std::nullopt);
        portal.emplace(*bus_, FakePortal::Options{.hasRegistry = true});
        ASSERT_TRUE(isBound());
        EXPECT_EQ(portal->calls().first(), u"Register app.kestrune.Vantrel"_s);
        EXPECT_EQ(portal->calls().last(), bindBoth_);
    }
}

TEST_F(PortalHotKeysTest, ASessionThatThePortalClosesIsMadeAnew)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    portal.closeSession();
    ASSERT_TRUE(eventually([&] { return portal.count(u"BindShortcuts"_s) == 2; }));
    ASSERT_TRUE(isBound());
    portal.press(a_);
    EXPECT_TRUE(hears({u"press 1"_s}));
    EXPECT_EQ(keys_->availability(), Availability::available);
}

TEST_F(PortalHotKeysTest, ADesktopThatClosesTheSessionAgainAndAgainHasRefused)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    for (int sessions = 1; sessions <= 4; ++sessions) {
        ASSERT_TRUE(eventually([&] { return portal.count(u"BindShortcuts"_s) == sessions; }));
        ASSERT_TRUE(isBound());
        portal.closeSession();
        ASSERT_TRUE(eventually([&] { return !keys_->grantedTrigger(1).has_value(); }));
    }
    EXPECT_TRUE(isAvailability(Availability::refused));
    settle();
    EXPECT_EQ(portal.count(u"BindShortcuts"_s), 4);
}

TEST_F(PortalHotKeysTest, WhatChangesWhileTheUserIsAskedIsAskedForAfterwards)
{
    FakePortal portal(*bus_, {.bound = std::nullopt});
    startWithTwoKeys();
    ASSERT_TRUE(eventually([&] { return portal.waiting() == 1; }));
    keys_->remove(2);
    settle();
    EXPECT_EQ(portal.count(u"BindShortcuts"_s), 1);
    portal.answer(0);
    ASSERT_TRUE(eventually([&] { return portal.waiting() == 1; }));
    EXPECT_EQ(portal.calls().last(), u"BindShortcuts key-1800-0=CTRL+ALT+a"_s);
    portal.answer(0);
    ASSERT_TRUE(isBound());
    portal.press(p_);
    portal.press(a_);
    EXPECT_TRUE(hears({u"press 1"_s}));
}

TEST_F(PortalHotKeysTest, AllThatIsRemovedWhileASessionIsMadeIsNotBound)
{
    FakePortal portal(*bus_, {.created = std::nullopt});
    startWithTwoKeys();
    ASSERT_TRUE(eventually([&] { return portal.waiting() == 1; }));
    keys_->remove(1);
    keys_->remove(2);
    settle();
    portal.answer(0);
    ASSERT_TRUE(eventually([&] { return portal.count(u"Close"_s) == 1; }));
    EXPECT_EQ(portal.count(u"BindShortcuts"_s), 0);
}

TEST_F(PortalHotKeysTest, APortalThatEndsWhileTheUserIsAskedIsForgotten)
{
    std::optional<FakePortal> portal;
    portal.emplace(*bus_, FakePortal::Options{.bound = std::nullopt});
    startWithTwoKeys();
    ASSERT_TRUE(eventually([&] { return portal->waiting() == 1; }));
    portal.reset();
    ASSERT_TRUE(isAvailability(Availability::notAvailable));
    portal.emplace(*bus_);
    EXPECT_TRUE(isBound());
}

TEST_F(PortalHotKeysTest, TheSessionEndsWithTheProgramsHotKeys)
{
    FakePortal portal(*bus_);
    startWithTwoKeys();
    ASSERT_TRUE(isBound());
    keys_.reset();
    EXPECT_TRUE(eventually([&] { return portal.count(u"Close"_s) == 1; }));
}

TEST_F(PortalHotKeysTest, NoAnswerReachesHotKeysThatAreGone)
{
    FakePortal portal(*bus_, {.bound = std::nullopt});
    startWithTwoKeys();
    ASSERT_TRUE(eventually([&] { return portal.waiting() == 1; }));
    keys_.reset();
    portal.answer(0);
    (*connection_).synchronize();
    makeKeys();
    startWithTwoKeys();
    ASSERT_TRUE(eventually([&] { return portal.waiting() == 1; }));
    portal.answer(0);
    EXPECT_TRUE(isBound());
}

TEST_F(PortalHotKeysTest, APortalThatHangsHoldsNothingUp)
{
    bus_->pause();
    startWithTwoKeys();
    QCoreApplication::processEvents();
    EXPECT_EQ(keys_->availability(), Availability::unknown);
    bus_->resume();
    const FakePortal portal(*bus_);
    EXPECT_TRUE(isBound());
}

} // namespace
} // namespace vantrel
