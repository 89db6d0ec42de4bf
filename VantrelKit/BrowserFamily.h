#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace vantrel {

/// How a browser keeps its profiles and how it is told to open one.
enum class BrowserFamily : std::uint8_t { safari, chromium, firefox };

/// All families in their fixed order.
inline constexpr std::array allBrowserFamilies{BrowserFamily::safari, BrowserFamily::chromium, BrowserFamily::firefox};

/// The word that stands for the family in saved files, commands and logs: "safari", "chromium" or "firefox".
[[nodiscard]] QString rawValue(BrowserFamily family);

/// The family of a raw value; none for any other text.
[[nodiscard]] std::optional<BrowserFamily> browserFamily(const QString &rawValue);

} // namespace vantrel
