#include "Platform/ProcessMemory.h"

#include <elf.h>
#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

namespace vantrel {
namespace {

/// Half of what glibc starts with; and once set, it no longer grows with what was freed.
constexpr int ownMappingFrom = 64 * 1024;

/// Gives back a library's pages that are as they are in its file, from where they come again when they are touched. The
/// system maps many more than are used, and most are used by the start alone.
int unmapUnchangedPages(dl_phdr_info *object, size_t /*size*/, void *pageSize)
{
    // The program itself, which has no name here, is small, and somebody waits when it is needed.
    if (*object->dlpi_name == '\0')
        return 0;
    const auto pageMask = ~(*static_cast<const std::uintptr_t *>(pageSize) - 1);
    for (int number = 0; number < object->dlpi_phnum; ++number) {
        const ElfW(Phdr) &segment = object->dlpi_phdr[number];
        // What the linker has written to is in none of these, also where it may only be read by now.
        if (segment.p_type != PT_LOAD || (segment.p_flags & PF_W) != 0)
            continue;
        const std::uintptr_t begin = (object->dlpi_addr + segment.p_vaddr) & pageMask;
        const std::uintptr_t end = (object->dlpi_addr + segment.p_vaddr + segment.p_filesz) & pageMask;
        if (begin < end) {
            // NOLINTNEXTLINE(performance-no-int-to-ptr): the linker tells its addresses as numbers.
            madvise(reinterpret_cast<void *>(begin), end - begin, MADV_DONTNEED);
        }
    }
    return 0;
}

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
    auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    dl_iterate_phdr(unmapUnchangedPages, &pageSize);
}

} // namespace vantrel
