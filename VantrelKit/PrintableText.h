#pragma once

#include <QString>

namespace vantrel {

/// The text with everything that would move a terminal's cursor, end a line or reorder its text written as an escape of
/// C:
/// `\n`, `\x1b`, `\u202e`. A backslash stays as it is.
[[nodiscard]] QString printable(const QString &text);

/// How many columns the text takes in a terminal.
[[nodiscard]] qsizetype columns(const QString &text);

} // namespace vantrel
