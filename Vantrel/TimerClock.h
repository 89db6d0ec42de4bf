#pragma once

#include "Vantrel/Clock.h"

namespace vantrel {

/// Waits in the event loop.
class TimerClock final : public Clock {
public:
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::milliseconds duration) override;
};

} // namespace vantrel
