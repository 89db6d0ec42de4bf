#pragma once

#include "VantrelKit/Safari/StringsFile.h"

namespace vantrel {

/// Fewer than other forms may have: libplist takes quadratic time for keys that collide in its hash table.
inline constexpr qsizetype mostXmlKeys = 10'000;

/// A strings file in the form of an XML property list, as UTF-8 without a byte-order mark, or of a binary one.
[[nodiscard]] std::expected<StringsFile, StringsFileError> parseXmlStrings(const QByteArray &content);
[[nodiscard]] std::expected<StringsFile, StringsFileError> parseBinaryStrings(const QByteArray &content);

} // namespace vantrel
