#pragma once

#include <cstdlib>
#include <memory>

namespace vantrel {

struct XcbFree {
    // The library hands over what it has allocated with malloc.
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc)
    void operator()(void *allocated) const { std::free(allocated); }
};

/// A reply or an error of the X server; null when it was the other of the two.
template <typename Type>
using XcbReply = std::unique_ptr<Type, XcbFree>;

} // namespace vantrel
