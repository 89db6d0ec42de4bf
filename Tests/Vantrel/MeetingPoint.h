#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace vantrel::test {

/// Where threads wait for each other, but not for ever.
class MeetingPoint {
public:
    explicit MeetingPoint(int expected) : expected_(expected) {}

    /// Waits until as many have arrived as are expected; false when some don't come in time.
    [[nodiscard]] bool arrive()
    {
        std::unique_lock lock(mutex_);
        ++arrived_;
        changed_.notify_all();
        return changed_.wait_for(lock, std::chrono::seconds(10), [this] { return arrived_ >= expected_; });
    }

private:
    int expected_;
    int arrived_ = 0;
    std::mutex mutex_;
    std::condition_variable changed_;
};

} // namespace vantrel::test
