#pragma once

#include "VantrelKit/Safari/StringsFile.h"

#include <QStringView>

namespace vantrel {

/// Reads the text form of a strings file, as macOS does: entries `key = value;` or `key;`, whose value is then the key
/// itself, with comments between them and, if need be, braces around them. Each parser is for one text, which must
/// outlive it.
class StringsTextParser {
public:
    explicit StringsTextParser(QStringView text) : text_(text) {}

    [[nodiscard]] std::expected<StringsFile, StringsFileError> parse();

private:
    /// These return false, or none, when they have set `failure_`.
    [[nodiscard]] bool readEntries();
    [[nodiscard]] bool readEntry();
    [[nodiscard]] bool readValue(const QString &key);
    [[nodiscard]] bool store(const QString &key, const std::optional<QString> &text);
    [[nodiscard]] std::optional<QString> readText();
    [[nodiscard]] std::optional<QString> readQuoted();
    [[nodiscard]] bool readEscape(QString &text);
    [[nodiscard]] bool readHexadecimal(QString &text);
    void readOctal(QString &text);
    [[nodiscard]] bool skipContainer();
    [[nodiscard]] bool skipInContainer();
    [[nodiscard]] bool skipBlanks();
    [[nodiscard]] bool skipBlockComment();
    void skipLineComment();

    [[nodiscard]] bool isAtEnd() const { return place_ >= text_.size(); }
    /// The next character; a null character at the end.
    [[nodiscard]] QChar peek(qsizetype ahead = 0) const;
    /// Passes over a character if it is the next.
    bool take(char16_t character);
    bool fail(qsizetype place, const QString &reason);

    QStringView text_;
    qsizetype place_ = 0;
    StringsFile file_;
    StringsFileError failure_;
};

} // namespace vantrel
