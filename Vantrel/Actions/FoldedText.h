#pragma once

#include <QString>

namespace vantrel {

/// The form in which texts are compared when people search: texts that differ in case, diacritics or compatibility
/// forms (full width, ligatures) only have the same one.
[[nodiscard]] QString foldedText(const QString &text);

} // namespace vantrel
