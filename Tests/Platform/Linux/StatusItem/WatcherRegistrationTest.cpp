#include "Platform/Linux/StatusItem/WatcherRegistration.h"

#include "Tests/Platform/Linux/StatusItem/StatusItemFixture.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::WatcherStandIn;

class WatcherRegistrationTest : public test::StatusItemFixture {
protected:
    [[nodiscard]] QString registration() { return serviceName() + " from "_L1 + serviceName(); }
};

TEST_F(WatcherRegistrationTest, WithoutABusTheSymbolIsNotShown)
{
    test::OwnConnection none(u"unix:path=/no/such/bus"_s);
    StatusNotifierItem item(*none, source_, environment_);
    item.start({.title = u"Vantrel"_s, .iconName = {}, .icon = {}, .menu = {}},
               [this](bool isShown) { shown_.append(isShown); });
    EXPECT_EQ(shown_, QList<bool>()) << "The answer comes from the event loop.";
    ASSERT_TRUE(awaitShown(1));
    EXPECT_EQ(shown_, QList<bool>{false});
    item.updateMenu();
}

TEST_F(WatcherRegistrationTest, WithoutAWatcherTheSymbolIsNotShown)
{
    start();
    EXPECT_EQ(shown_, QList<bool>()) << "The answer comes from the event loop.";
    ASSERT_TRUE(awaitShown(1));
    EXPECT_EQ(shown_, QList<bool>{false});
}

TEST_F(WatcherRegistrationTest, AWatcherWithAPanelGetsTheConnectionsNameOnce)
{
    WatcherStandIn watcher(bus_, true);
    start();
    EXPECT_EQ(shown_, QList<bool>()) << "The answer comes from the event loop.";
    ASSERT_TRUE(awaitShown(1));
    EXPECT_EQ(shown_, QList<bool>{true});
    EXPECT_EQ(watcher.registrations(), QStringList(registration()));
}

TEST_F(WatcherRegistrationTest, AWatcherThatComesLaterIsPickedUp)
{
    start();
    ASSERT_TRUE(awaitShown(1));
    WatcherStandIn watcher(bus_, true);
    ASSERT_TRUE(awaitShown(2));
    EXPECT_EQ(shown_, (QList<bool>{false, true}));
    EXPECT_EQ(watcher.registrations(), QStringList(registration()));
}

TEST_F(WatcherRegistrationTest, AWatcherThatRestartsGetsTheNameAgain)
{
    std::optional<WatcherStandIn> watcher;
    watcher.emplace(bus_, true);
    start();
    ASSERT_TRUE(awaitShown(1));
    for (qsizetype time = 1; time <= 2; ++time) {
        watcher.reset();
        ASSERT_TRUE(awaitShown(2 * time));
        watcher.emplace(bus_, true);
        ASSERT_TRUE(awaitShown((2 * time) + 1));
        EXPECT_EQ(watcher->registrations(), QStringList(registration()));
    }
    EXPECT_EQ(shown_, (QList<bool>{true, false, true, false, true}));
}

TEST_F(WatcherRegistrationTest, ThatAFormerWatcherHadTheSymbolSaysNothingOfTheNext)
{
    std::optional<WatcherStandIn> watcher;
    watcher.emplace(bus_, true);
    start();
    ASSERT_TRUE(awaitShown(1));
    watcher.reset();
    watcher.emplace(bus_, true);
    watcher->hold();
    ASSERT_TRUE(test::eventually([&] { return watcher->heldCalls() == 1; }));
    test::PanelStandIn panel(bus_, serviceName());
    EXPECT_FALSE(panel.properties().isEmpty()) << "What the watcher answered before has arrived now.";
    EXPECT_EQ(shown_, (QList<bool>{true, false}));
    watcher->answer();
    ASSERT_TRUE(awaitShown(3));
    EXPECT_EQ(shown_, (QList<bool>{true, false, true}));
}

class WatcherNoticeTest : public WatcherRegistrationTest, public testing::WithParamInterface<WatcherStandIn::Notice> {};

TEST_P(WatcherNoticeTest, APanelThatComesLaterGoesAndReturnsIsFollowed)
{
    WatcherStandIn watcher(bus_, false, GetParam());
    start();
    ASSERT_TRUE(awaitShown(1));
    // A panel that comes without any notice finds the item all the same.
    EXPECT_EQ(watcher.registrations(), QStringList(registration()));
    watcher.setHasHost(true);
    ASSERT_TRUE(awaitShown(2));
    ASSERT_TRUE(test::eventually([&] { return watcher.registrations().size() == 2; }));
    watcher.setHasHost(false);
    ASSERT_TRUE(awaitShown(3));
    watcher.setHasHost(true);
    ASSERT_TRUE(awaitShown(4));
    EXPECT_EQ(shown_, (QList<bool>{false, true, false, true}));
    EXPECT_TRUE(test::eventually([&] { return watcher.registrations().size() == 3; }))
        << "A watcher may have dropped the item with the panel.";
}

INSTANTIATE_TEST_SUITE_P(Each, WatcherNoticeTest,
                         testing::Values(WatcherStandIn::Notice::ownSignals, WatcherStandIn::Notice::propertyChange));

TEST_F(WatcherRegistrationTest, AsLongAsAnotherPanelIsThereNothingChanges)
{
    WatcherStandIn watcher(bus_, true);
    start();
    ASSERT_TRUE(awaitShown(1));
    Q_EMIT watcher.StatusNotifierHostUnregistered();
    Q_EMIT watcher.StatusNotifierHostRegistered();
    watcher.setHasHost(false);
    ASSERT_TRUE(awaitShown(2));
    EXPECT_EQ(shown_, (QList<bool>{true, false}));
    EXPECT_EQ(watcher.registrations(), QStringList(registration()));
}

TEST_F(WatcherRegistrationTest, AWatcherThatRefusesIsAskedAgainWhenAPanelComes)
{
    WatcherStandIn watcher(bus_, true);
    watcher.setRefuses(true);
    start();
    ASSERT_TRUE(awaitShown(1));
    EXPECT_EQ(shown_, QList<bool>{false});
    watcher.setRefuses(false);
    Q_EMIT watcher.StatusNotifierHostRegistered();
    ASSERT_TRUE(awaitShown(2));
    EXPECT_EQ(shown_, (QList<bool>{false, true}));
    EXPECT_EQ(watcher.registrations(), QStringList(registration()));
}

TEST_F(WatcherRegistrationTest, TheSymbolIsShownOnlyOnceTheWatcherHasTakenIt)
{
    WatcherStandIn watcher(bus_, true);
    watcher.hold();
    start();
    ASSERT_TRUE(test::eventually([&] { return watcher.heldCalls() == 1; }));
    test::PanelStandIn panel(bus_, serviceName());
    EXPECT_FALSE(panel.properties().isEmpty()) << "The item works meanwhile.";
    EXPECT_EQ(shown_, QList<bool>());
    watcher.answer();
    ASSERT_TRUE(awaitShown(1));
    EXPECT_EQ(shown_, QList<bool>{true});
}

TEST_F(WatcherRegistrationTest, AWatcherThatEndsWithoutAnAnswerIsNone)
{
    std::optional<WatcherStandIn> watcher;
    watcher.emplace(bus_, true);
    watcher->hold();
    start();
    ASSERT_TRUE(test::eventually([&] { return watcher->heldCalls() == 1; }));
    watcher.reset();
    ASSERT_TRUE(awaitShown(1));
    EXPECT_EQ(shown_, QList<bool>{false});
    watcher.emplace(bus_, true);
    ASSERT_TRUE(awaitShown(2));
    EXPECT_EQ(shown_, (QList<bool>{false, true}));
}

TEST_F(WatcherRegistrationTest, NoAnswerReachesAnItemThatIsGone)
{
    WatcherStandIn watcher(bus_, true);
    watcher.hold();
    test::OwnConnection connection(bus_.address());
    std::optional<StatusNotifierItem> item;
    item.emplace(*connection, source_, environment_);
    item->start({.title = u"Vantrel"_s, .iconName = {}, .icon = {}, .menu = {}},
                [this](bool isShown) { shown_.append(isShown); });
    ASSERT_TRUE(test::eventually([&] { return watcher.heldCalls() == 1; }));
    item.reset();
    watcher.answer();
    // The second item's answer comes after all that the first could get.
    start();
    ASSERT_TRUE(test::eventually([&] { return watcher.heldCalls() == 1; }));
    watcher.answer();
    ASSERT_TRUE(awaitShown(1));
}

} // namespace
} // namespace vantrel
