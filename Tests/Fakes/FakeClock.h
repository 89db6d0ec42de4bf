#pragma once

#include "Vantrel/Clock.h"

#include <QList>

#include <functional>
#include <utility>

namespace vantrel::test {

/// Time that passes at once. What was slept is kept.
class FakeClock final : public Clock {
public:
    /// Called in each sleep, for what happens meanwhile.
    void setMeanwhile(std::function<void()> meanwhile) { meanwhile_ = std::move(meanwhile); }

    /// The sleeps since the last time, in milliseconds.
    [[nodiscard]] QList<int> takeSleeps() { return std::exchange(sleeps_, {}); }

    [[nodiscard]] QCoro::Task<> sleep(std::chrono::milliseconds duration) override
    {
        sleeps_.append(static_cast<int>(duration.count()));
        if (meanwhile_)
            meanwhile_();
        co_return;
    }

private:
    std::function<void()> meanwhile_;
    QList<int> sleeps_;
};

} // namespace vantrel::test
