#pragma once

#include "Tests/VantrelKit/Printing.h"
#include "VantrelKit/Safari/StringsFile.h"

namespace vantrel::test {

/// What a strings file holds: "KEY=TEXT", by keys, separated by semicolons, "KEY?" where the value is no text; or the
/// error's message.
[[nodiscard]] QString shown(const std::expected<StringsFile, StringsFileError> &file);

/// A text as UTF-16 with a byte-order mark.
[[nodiscard]] QByteArray littleEndian(const QString &text);
[[nodiscard]] QByteArray bigEndian(const QString &text);

} // namespace vantrel::test
