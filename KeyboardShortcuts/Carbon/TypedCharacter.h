#pragma once

#include <QString>

#include <optional>

namespace vantrel {

/// The one character among what a layout says that a key types. Null for nothing, for several characters, and for those
/// that act, as those of Return and the arrow keys.
[[nodiscard]] std::optional<QString> typedCharacter(QStringView typed);

} // namespace vantrel
