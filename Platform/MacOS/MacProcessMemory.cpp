#include "Platform/ProcessMemory.h"

#include <malloc/malloc.h>

namespace vantrel {

void ProcessMemory::keepSmall()
{
    // The system's allocator keeps what was freed where the system can take it back by itself.
}

void ProcessMemory::giveBack()
{
    malloc_zone_pressure_relief(nullptr, 0);
}

} // namespace vantrel
