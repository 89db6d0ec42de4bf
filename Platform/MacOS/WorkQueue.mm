#include "Platform/MacOS/WorkQueue.h"

#import <Foundation/Foundation.h>

#include <utility>

namespace vantrel {

struct WorkQueue::Native {
    dispatch_queue_t queue = nil;
};

WorkQueue::WorkQueue() : native_(new Native{dispatch_queue_create("app.kestrune.Vantrel.work", DISPATCH_QUEUE_SERIAL)})
{
}

WorkQueue::~WorkQueue() = default;

void WorkQueue::add(std::function<void()> work)
{
    const auto shared = std::make_shared<std::function<void()>>(std::move(work));
    dispatch_async(native_->queue, ^{
      @autoreleasepool {
          // What it owns ends here as well, not on whichever thread lets go of it last.
          const auto owned = std::exchange(*shared, nullptr);
          owned();
      }
    });
}

} // namespace vantrel
