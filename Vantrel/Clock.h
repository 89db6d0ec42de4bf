#pragma once

#include <QCoroTask>

#include <chrono>

namespace vantrel {

/// Waiting, for what has to be tried again a little later. Main thread only.
class Clock {
public:
    virtual ~Clock() = default;

    [[nodiscard]] virtual QCoro::Task<> sleep(std::chrono::milliseconds duration) = 0;
};

} // namespace vantrel
