#pragma once

#include "Vantrel/Safari/Failure.h"
#include "VantrelKit/Safari/SafariLanguage.h"

#include <optional>

namespace vantrel::Safari {

/// The language to go on with after Safari's menu bar was read. When it stayed unreadable and Safari runs, English
/// serves: the keys that open a profile by its place are the same in all languages.
[[nodiscard]] Result<SafariLanguage> menuLanguage(const Result<std::optional<SafariLanguage>> &read, bool isRunning);

} // namespace vantrel::Safari
