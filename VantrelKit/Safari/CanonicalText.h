#pragma once

#include <QString>

namespace vantrel {

/// True when two texts are the same characters, also when one has an accent of its own where the other has a letter
/// with its accent: a profile's name and the menu's text may have come different ways.
[[nodiscard]] bool isSameText(const QString &text, const QString &other);

} // namespace vantrel
