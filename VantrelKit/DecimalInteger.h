#pragma once

#include <QStringView>

#include <optional>

namespace vantrel {

/// The number that a text holds, and nothing else: ASCII digits behind an optional sign. None for any other text, and
/// for numbers beyond 64 bits.
[[nodiscard]] std::optional<qint64> decimalInteger(QStringView text);

} // namespace vantrel
