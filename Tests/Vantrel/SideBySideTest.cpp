#include "Vantrel/SideBySide.h"

#include "Tests/Vantrel/MeetingPoint.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace vantrel {
namespace {

TEST(SideBySide, EveryCallIsMadeOnceAndDoneAtTheEnd)
{
    for (const size_t count : {0U, 1U, 2U, 3U, 7U, 1000U}) {
        std::vector<std::atomic<int>> calls(count);
        sideBySide(calls.size(), [&calls](size_t index) { ++calls.at(index); });
        EXPECT_TRUE(std::ranges::all_of(calls, [](const auto &times) { return times == 1; })) << count << " calls";
    }
}

TEST(SideBySide, TwoCallsAreMadeAtATime)
{
    test::MeetingPoint point(2);
    std::atomic<int> met = 0;
    sideBySide(2, [&](size_t) { met += point.arrive() ? 1 : 0; });
    EXPECT_EQ(met, 2) << "One call waited for the other to be done.";
}

TEST(SideBySide, ASingleCallIsMadeOnTheCallersThread)
{
    std::thread::id used;
    sideBySide(1, [&used](size_t) { used = std::this_thread::get_id(); });
    EXPECT_EQ(used, std::this_thread::get_id());
}

TEST(SideBySide, TheCallersThreadTakesItsShare)
{
    test::MeetingPoint point(2);
    std::atomic<int> own = 0;
    sideBySide(2, [&, caller = std::this_thread::get_id()](size_t) {
        // Nobody takes a second turn before both are taken.
        if (point.arrive() && std::this_thread::get_id() == caller)
            ++own;
    });
    EXPECT_EQ(own, 1);
}

} // namespace
} // namespace vantrel
