#pragma once

#include <filesystem>
#include <string>
#include <system_error>

/// Calls that each system has in a form of its own.
namespace vantrel::system_calls {

/// Not following a symbolic link. No error when there is no such attribute, or can't be any.
[[nodiscard]] std::error_code removeExtendedAttribute(const std::filesystem::path &path, const std::string &name);

/// Puts each of two items in the other's place in one step; `std::errc::not_supported` where that can't be done.
[[nodiscard]] std::error_code exchange(const std::filesystem::path &one, const std::filesystem::path &other);

} // namespace vantrel::system_calls
