#pragma once

#include "VantrelKit/Safari/StringsFileError.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

#include <expected>

namespace vantrel {

/// The content of a macOS strings file, which gives each text of an interface by its key. It comes in four forms: lines
/// of `"key" = "value";`, the same in braces (an old property list), an XML property list and a binary one. The texts
/// are valid Unicode: half a surrogate pair becomes U+FFFD. Any thread.
struct StringsFile {
    /// Where a key is there twice, the last one counts.
    QHash<QString, QString> texts;
    /// The keys whose values are lists, numbers and such, which are passed over.
    QSet<QString> otherKeys;

    /// What exceeds these is refused, so that a damaged or hostile file takes neither long nor much memory. Files of
    /// the largest programs hold a fraction of it.
    static constexpr qsizetype largestSize = qsizetype{4} * 1024 * 1024;
    static constexpr qsizetype mostKeys = 20'000;
    static constexpr int deepestNesting = 32;

    /// The file with this content: UTF-8, or UTF-16 with a byte-order mark, or a binary property list.
    [[nodiscard]] static std::expected<StringsFile, StringsFileError> parse(const QByteArray &content);

    /// The file at a path; nothing but a plain file is opened.
    [[nodiscard]] static std::expected<StringsFile, StringsFileError> read(const QString &path);

    /// Each replaces what the key had; false when that is one key too many.
    [[nodiscard]] bool setText(const QString &key, const QString &text);
    [[nodiscard]] bool setOther(const QString &key);

    friend bool operator==(const StringsFile &, const StringsFile &) = default;
};

} // namespace vantrel
