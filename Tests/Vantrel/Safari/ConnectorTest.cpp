#include "Vantrel/Safari/Connector.h"

#include "Tests/Fakes/FakeClock.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakePermissions.h"
#include "Tests/Fakes/FakeSafariBridge.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/Safari/SafariPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vantrel::Safari {
namespace {

class ConnectorTest : public testing::Test {
protected:
    Result<Connection> connect() { return QCoro::waitFor(connector_.connect(test::safari)); }

    test::EventProgram program_;
    test::FakeSafariBridge bridge_;
    test::FakeAutomationPermission automation_;
    test::FakeClock clock_;
    test::FakeLog log_;
    Connector connector_{{bridge_, automation_, clock_, log_}};
};

TEST_F(ConnectorTest, ARunningSafariComesToTheFront)
{
    const auto connection = connect();
    ASSERT_TRUE(connection.has_value());
    EXPECT_EQ(connection->application, bridge_.shared());
    EXPECT_FALSE(connection->isFreshlyStarted);
    EXPECT_EQ(bridge_.connections(), QStringList(test::safari));
    EXPECT_EQ(bridge_.settings().answerLimit, 5s);
    EXPECT_EQ(bridge_.application().takeCalls(), QStringList(u"activate"_s));
    EXPECT_EQ(automation_.requests(), QStringList(test::safari));
    EXPECT_EQ(clock_.takeSleeps(), QList<int>());
    EXPECT_EQ(log_.takeLines(), QStringList());
}

TEST_F(ConnectorTest, WithoutAnApplicationItIsTheAutomationFailure)
{
    bridge_.setConnects(false);
    EXPECT_EQ(connect().error(), Failure::automation());
    EXPECT_EQ(automation_.requests(), QStringList());
}

TEST_F(ConnectorTest, ASafariThatStartsIsWaitedFor)
{
    bridge_.application().runs = false;
    bridge_.application().starts = false;
    int sleeps = 0;
    clock_.setMeanwhile([this, &sleeps] { bridge_.application().runs = ++sleeps == 3; });
    const auto connection = connect();
    ASSERT_TRUE(connection.has_value());
    EXPECT_TRUE(connection->isFreshlyStarted);
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(3, 50));
}

TEST_F(ConnectorTest, ASafariThatDoesNotStartIsWaitedForFortyTimes)
{
    bridge_.application().runs = false;
    bridge_.application().starts = false;
    EXPECT_TRUE(connect().has_value());
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(40, 50));
    EXPECT_EQ(automation_.requests().size(), 1);
}

TEST_F(ConnectorTest, OnlyTheUsersRefusalCountsAsOne)
{
    automation_.setAnswer(-1743);
    EXPECT_EQ(connect().error(), Failure::automation());
    automation_.setAnswer(-600);
    EXPECT_TRUE(connect().has_value());
    EXPECT_EQ(log_.takeLines(), QStringList({u"[ScriptingErrors] Automation of com.apple.Safari: -1743"_s,
                                             u"[ScriptingErrors] Automation of com.apple.Safari: -600"_s}));
    automation_.setAnswer(std::nullopt);
    EXPECT_TRUE(connect().has_value());
    EXPECT_EQ(log_.takeLines(), QStringList());
}

TEST_F(ConnectorTest, WhatFailsOnTheWayToSafariIsLogged)
{
    ASSERT_TRUE(connect().has_value());
    bridge_.settings().sendingFailed(u"no answer"_s);
    EXPECT_EQ(log_.takeLines(), QStringList(u"[ScriptingErrors] error: Safari scripting failed: no answer"_s));
}

} // namespace
} // namespace vantrel::Safari
