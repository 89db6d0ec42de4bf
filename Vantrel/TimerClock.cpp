#include "Vantrel/TimerClock.h"

#include <QCoroTimer>

namespace vantrel {

QCoro::Task<> TimerClock::sleep(std::chrono::milliseconds duration)
{
    return QCoro::sleepFor(duration);
}

} // namespace vantrel
