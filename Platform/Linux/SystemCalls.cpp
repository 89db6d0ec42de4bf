#include "Platform/SystemCalls.h"

#include <fcntl.h>
#include <sys/xattr.h>

#include <cerrno>
#include <cstdio>

namespace vantrel::system_calls {
namespace {

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

} // namespace

std::error_code removeExtendedAttribute(const std::filesystem::path &path, const std::string &name)
{
    // A name without one of the prefixes of Linux is not supported, as is any on some file systems: there is none then.
    if (lremovexattr(path.c_str(), name.c_str()) == 0 || errno == ENODATA || errno == ENOTSUP)
        return {};
    return lastError();
}

std::error_code exchange(const std::filesystem::path &one, const std::filesystem::path &other)
{
    if (renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0)
        return {};
    // What file systems and kernels answer that can't.
    if (errno == EINVAL || errno == ENOSYS)
        return std::make_error_code(std::errc::not_supported);
    return lastError();
}

} // namespace vantrel::system_calls
