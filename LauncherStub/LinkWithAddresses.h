#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What the program inside a launcher app decides. It is copied into each launcher and therefore small: it uses nothing
/// but the language's own library.
namespace vantrel::launcher_stub {

/// A launcher's link with the addresses that were dropped on it: each becomes a `url` item at the link's end, encoded
/// as the app encodes links. Addresses of other schemes than http, https and file are left out. Texts are UTF-8.
[[nodiscard]] std::string linkWithAddresses(std::string_view link, const std::vector<std::string> &addresses);

} // namespace vantrel::launcher_stub
