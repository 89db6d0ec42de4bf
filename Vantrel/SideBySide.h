#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

namespace vantrel {

/// Calls `work(0)` to `work(count - 1)`, several at a time, the smaller ones first; returns when all are done. The
/// calls must not throw, and must not change what others read. There is one thread more than there are processors,
/// since one is likely to wait for the disk or for another program; the calling thread is one of them, so that a single
/// call costs none.
template <typename Work>
void sideBySide(size_t count, const Work &work)
{
    std::atomic<size_t> next = 0;
    const auto takeTurns = [&] {
        for (size_t index = next++; index < count; index = next++)
            work(index);
    };
    const size_t threadCount = std::min<size_t>(count, std::thread::hardware_concurrency() + 1);
    // Apple's C++ library had no joining threads for long.
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (size_t started = 1; started < threadCount; ++started)
        threads.emplace_back(takeTurns);
    takeTurns();
    for (std::thread &thread : threads)
        thread.join();
}

} // namespace vantrel
