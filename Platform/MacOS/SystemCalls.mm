#include "Platform/SystemCalls.h"

#include <sys/stdio.h>
#include <sys/xattr.h>

#include <cerrno>

namespace vantrel::system_calls {
namespace {

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

} // namespace

std::error_code removeExtendedAttribute(const std::filesystem::path &path, const std::string &name)
{
    // ENOTSUP: a file system without attributes has none.
    if (removexattr(path.c_str(), name.c_str(), XATTR_NOFOLLOW) == 0 || errno == ENOATTR || errno == ENOTSUP)
        return {};
    return lastError();
}

std::error_code exchange(const std::filesystem::path &one, const std::filesystem::path &other)
{
    if (renamex_np(one.c_str(), other.c_str(), RENAME_SWAP) == 0)
        return {};
    // What file systems answer that can't.
    if (errno == ENOTSUP || errno == EINVAL)
        return std::make_error_code(std::errc::not_supported);
    return lastError();
}

} // namespace vantrel::system_calls
