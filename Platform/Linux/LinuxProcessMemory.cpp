#include "Platform/ProcessMemory.h"

#include <malloc.h>

namespace vantrel {
namespace {

/// Half of what glibc starts with; and once set, it no longer grows with what was freed.
constexpr int ownMappingFrom = 64 * 1024;

} // namespace

void ProcessMemory::keepSmall()
{
    // One heap for all threads: those that read profiles end soon and would each leave a mostly empty one behind.
    // NOLINTBEGIN(concurrency-mt-unsafe): called before there are other threads.
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, ownMappingFrom);
    mallopt(M_TRIM_THRESHOLD, ownMappingFrom);
    // NOLINTEND(concurrency-mt-unsafe)
}

void ProcessMemory::giveBack()
{
    malloc_trim(0);
}

} // namespace vantrel
