#include "Platform/Linux/Processes/RunningInstances.h"

#include "Tests/Platform/Linux/Processes/ProcessesFixture.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class RunningInstancesTest : public test::ProcessesFixture {
protected:
    void add(const QString &folder, qint64 number)
    {
        auto process = ProcessHandle::open(static_cast<pid_t>(number));
        ASSERT_TRUE(process.has_value());
        instances_.add(folder, *std::move(process));
    }

    QList<QStringList> ended_;
    RunningInstances instances_{[this](const QStringList &folders) { ended_.append(folders); }};
};

TEST_F(RunningInstancesTest, AProcessEndsOnceWithAllFoldersThatItUsed)
{
    test::StandIn process({u"idle"_s});
    for (const QString &folder : {u"/1"_s, u"/2"_s, u"/1"_s})
        add(folder, process.process());
    EXPECT_TRUE(instances_.isRunning(u"/1"_s));
    EXPECT_TRUE(instances_.isRunning(u"/2"_s));
    EXPECT_FALSE(instances_.isRunning(u"/3"_s));
    process.kill();
    EXPECT_FALSE(instances_.isRunning(u"/1"_s));
    EXPECT_TRUE(test::waitUntil([this] { return !ended_.isEmpty(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(ended_, (QList<QStringList>{{u"/1"_s, u"/2"_s}}));
}

TEST_F(RunningInstancesTest, AProcessThatHasEndedDoesNotEndAgain)
{
    const pid_t ended = fork();
    if (ended == 0)
        _exit(EXIT_SUCCESS);
    siginfo_t unused{};
    // Its number stays until it is waited for without this option.
    ASSERT_EQ(waitid(P_PID, static_cast<id_t>(ended), &unused, WEXITED | WNOWAIT), 0);
    add(u"/1"_s, ended);
    EXPECT_FALSE(instances_.isRunning(u"/1"_s));
    test::StandIn other({u"idle"_s});
    add(u"/2"_s, other.process());
    other.kill();
    EXPECT_TRUE(test::waitUntil([this] { return ended_.contains(QStringList(u"/2"_s)); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(ended_, (QList<QStringList>{{u"/2"_s}}));
    EXPECT_EQ(waitpid(ended, nullptr, 0), ended);
}

} // namespace
} // namespace vantrel
