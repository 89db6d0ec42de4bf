#include "LauncherStub/LinkWithAddresses.h"

#include <algorithm>

namespace vantrel::launcher_stub {
namespace {

/// Not those of <cctype>, which depend on the locale.
bool isLetterOrDigit(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9');
}

char lower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool isOpenable(std::string_view address)
{
    std::string scheme(address.substr(0, address.find(':')));
    std::ranges::transform(scheme, scheme.begin(), lower);
    return scheme.size() < address.size() && (scheme == "http" || scheme == "https" || scheme == "file");
}

/// What may stand in a query stays as it is, except what readers of queries take apart.
std::string encoded(std::string_view text)
{
    constexpr std::string_view unencoded = "-._~!$'()*,/:;?@";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (const char character : text) {
        if (isLetterOrDigit(character) || unencoded.find(character) != std::string_view::npos) {
            result += character;
            continue;
        }
        const auto byte = static_cast<unsigned char>(character);
        result += '%';
        result += digits[byte / 16];
        result += digits[byte % 16];
    }
    return result;
}

} // namespace

std::string linkWithAddresses(std::string_view link, const std::vector<std::string> &addresses)
{
    std::string result(link);
    for (const std::string &address : addresses) {
        if (isOpenable(address))
            result += "&url=" + encoded(address);
    }
    return result;
}

} // namespace vantrel::launcher_stub
