#include "Vantrel/Safari/MenuLanguage.h"

namespace vantrel::Safari {

Result<SafariLanguage> menuLanguage(const Result<std::optional<SafariLanguage>> &read, bool isRunning)
{
    if (!read)
        return std::unexpected(read.error());
    if (const std::optional<SafariLanguage> &language = *read)
        return *language;
    if (!isRunning)
        return std::unexpected(Failure::notStarted());
    return SafariLanguage::english();
}

} // namespace vantrel::Safari
