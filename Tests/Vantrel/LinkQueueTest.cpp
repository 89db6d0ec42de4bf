#include "Vantrel/LinkQueue.h"

#include "Tests/Fakes/FakeAlert.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeRunningApplications.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/PlantedBrowsers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString byName = u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName="_s;
const QString byID =
    u"vantrel://?browserBundleIdentifier=com.google.Chrome&profile=com.google.Chrome/chromium:Profile%207"_s;

class LinkQueueTest : public testing::Test {
protected:
    LinkQueueTest()
    {
        planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}, {u"Profile 1"_s, u"Two"_s}});
    }

    void open(const QStringList &links) { queue_.open(QUrl::fromStringList(links)); }

    void finish()
    {
        ASSERT_TRUE(test::waitUntil([this] { return discovery_.isIdle(); }));
    }

    /// The folders that were opened, in their order.
    [[nodiscard]] QStringList opened() const
    {
        QStringList folders;
        for (const test::FakeWorkspace::Opening &opening : planted_.workspace.openings())
            folders.append(opening.arguments.first().section(u'=', 1));
        return folders;
    }

    test::EventProgram program_;
    test::PlantedBrowsers planted_;
    test::FakeRunningApplications running_;
    test::FakeAlert alert_;
    test::FakeLog log_;
    ProfileStore store_{planted_.folder.path(u"profiles.json"_s), log_};
    DiscoveryRuns discovery_{store_, {planted_.workspace, planted_.data, running_}, ProfileReader()};
    ProfileOpener opener_{store_, {planted_.workspace, alert_, log_}};
    LinkQueue queue_{store_, discovery_, opener_};
};

TEST_F(LinkQueueTest, LinksAreOpenedInTheirOrderAndABadOneStopsNone)
{
    discovery_.start();
    finish();
    open({byName + u"Two"_s, u"mailto:a@example.com"_s, byName + u"Gone"_s, byName + u"One"_s});
    EXPECT_EQ(opened(), QStringList({u"Profile 1"_s, u"Default"_s}));
    EXPECT_EQ(alert_.shown().size(), 1);
}

TEST_F(LinkQueueTest, ALinkThatStartsTheProgramForTheFirstTimeWaitsForItsProfile)
{
    discovery_.start();
    open({byName + u"Two"_s, byID});
    EXPECT_EQ(opened(), QStringList());
    finish();
    EXPECT_EQ(opened(), QStringList({u"Profile 1"_s, u"Profile 7"_s}));
    EXPECT_TRUE(alert_.shown().isEmpty());
}

TEST_F(LinkQueueTest, WhatIsKnownAlreadyDoesNotWait)
{
    discovery_.start();
    open({byID});
    EXPECT_EQ(opened(), QStringList(u"Profile 7"_s));
    finish();
}

TEST_F(LinkQueueTest, AProfileThatIsNotThereAfterAllIsTold)
{
    discovery_.start();
    open({byName + u"Gone"_s});
    EXPECT_TRUE(alert_.shown().isEmpty());
    finish();
    EXPECT_EQ(alert_.shown().size(), 1);
}

} // namespace
} // namespace vantrel
