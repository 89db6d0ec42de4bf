#include "VantrelKit/Safari/StringsTextParser.h"

#include "VantrelKit/Safari/NextStepCharacter.h"

#include <QVarLengthArray>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

bool isLineEnd(QChar character)
{
    return character == u'\n' || character == u'\r' || character == u'\u2028' || character == u'\u2029';
}

bool isBlank(QChar character)
{
    return character == u' ' || (character >= u'\t' && character <= u'\r') || isLineEnd(character);
}

bool isDigit(QChar character, char16_t last)
{
    return character >= u'0' && character <= last;
}

/// The characters of texts that need no quotes.
bool isUnquoted(QChar character)
{
    const bool isLetter = (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
    return isLetter || isDigit(character, u'9') || u"_$/:.-"_s.contains(character);
}

std::optional<char16_t> hexadecimalDigit(QChar character)
{
    const char16_t code = character.unicode();
    if (isDigit(character, u'9'))
        return static_cast<char16_t>(code - u'0');
    const auto lower = static_cast<char16_t>(code | 0x20);
    return lower >= u'a' && lower <= u'f' ? std::optional(static_cast<char16_t>(lower - u'a' + 10)) : std::nullopt;
}

/// What a backslash makes of a character; the character itself where it has no meaning of its own.
QChar unescaped(QChar character)
{
    switch (character.unicode()) {
    case u'a': return u'\a';
    case u'b': return u'\b';
    case u'f': return u'\f';
    case u'n': return u'\n';
    case u'r': return u'\r';
    case u't': return u'\t';
    case u'v': return u'\v';
    default: return character;
    }
}

/// What closes a container; none when the character opens none.
std::optional<QChar> closing(QChar character)
{
    switch (character.unicode()) {
    case u'{': return u'}';
    case u'(': return u')';
    case u'<': return u'>';
    default: return std::nullopt;
    }
}

/// The text with U+FFFD in the place of each half of a surrogate pair.
QString withoutHalfPairs(QString text)
{
    if (text.isValidUtf16())
        return text;
    const auto characters = text.toUcs4();
    QString result;
    for (const char32_t character : characters)
        result += QChar::fromUcs4(character);
    return result;
}

StringsFileError::Place placeIn(QStringView text)
{
    StringsFileError::Place place;
    qsizetype lineStart = 0;
    for (qsizetype index = 0; index < text.size(); ++index) {
        const bool isInCrLf = text[index] == u'\r' && index + 1 < text.size() && text[index + 1] == u'\n';
        if (!isLineEnd(text[index]) || isInCrLf)
            continue;
        ++place.line;
        lineStart = index + 1;
    }
    place.column = text.size() - lineStart + 1;
    return place;
}

} // namespace

std::expected<StringsFile, StringsFileError> StringsTextParser::parse()
{
    if (!readEntries())
        return std::unexpected(std::move(failure_));
    return std::move(file_);
}

bool StringsTextParser::readEntries()
{
    if (!skipBlanks())
        return false;
    const qsizetype start = place_;
    const bool hasBraces = take(u'{');
    while (skipBlanks()) {
        if (isAtEnd())
            return !hasBraces || fail(start, u"The brace isn't closed"_s);
        if (hasBraces && take(u'}'))
            return skipBlanks() && (isAtEnd() || fail(place_, u"Nothing may follow the closing brace"_s));
        if (!readEntry())
            return false;
    }
    return false;
}

bool StringsTextParser::readEntry()
{
    const auto key = readText();
    if (!key || !skipBlanks())
        return false;
    if (take(u';'))
        return store(*key, key);
    if (!take(u'='))
        return fail(place_, u"An equals sign or a semicolon is missing"_s);
    if (!skipBlanks() || !readValue(*key) || !skipBlanks())
        return false;
    return take(u';') || fail(place_, u"A semicolon is missing"_s);
}

bool StringsTextParser::readValue(const QString &key)
{
    if (closing(peek()))
        return skipContainer() && store(key, std::nullopt);
    const auto text = readText();
    return text && store(key, text);
}

bool StringsTextParser::store(const QString &key, const std::optional<QString> &text)
{
    const bool fits = text ? file_.setText(key, *text) : file_.setOther(key);
    return fits || fail(place_, u"There are more than %1 keys"_s.arg(StringsFile::mostKeys));
}

std::optional<QString> StringsTextParser::readText()
{
    if (peek() == u'"' || peek() == u'\'')
        return readQuoted();
    const qsizetype start = place_;
    while (isUnquoted(peek()))
        ++place_;
    if (place_ == start) {
        fail(place_, u"A text is missing"_s);
        return std::nullopt;
    }
    return text_.sliced(start, place_ - start).toString();
}

std::optional<QString> StringsTextParser::readQuoted()
{
    const qsizetype start = place_;
    const QChar quote = text_[place_++];
    QString text;
    while (!isAtEnd()) {
        const QChar character = text_[place_++];
        if (character == quote)
            return withoutHalfPairs(std::move(text));
        if (character != u'\\')
            text += character;
        else if (!readEscape(text))
            return std::nullopt;
    }
    fail(start, u"The quote isn't closed"_s);
    return std::nullopt;
}

bool StringsTextParser::readEscape(QString &text)
{
    if (isAtEnd())
        return fail(place_ - 1, u"A character is missing behind the backslash"_s);
    if (isDigit(peek(), u'7')) {
        readOctal(text);
        return true;
    }
    const QChar character = text_[place_++];
    if (character == u'U' || character == u'u')
        return readHexadecimal(text);
    text += unescaped(character);
    return true;
}

/// One to four digits make a UTF-16 code unit, so that two of these make a character beyond them.
bool StringsTextParser::readHexadecimal(QString &text)
{
    char16_t code = 0;
    int count = 0;
    for (; count < 4; ++count) {
        const auto digit = hexadecimalDigit(peek());
        if (!digit)
            break;
        code = static_cast<char16_t>((code * 16) + *digit);
        ++place_;
    }
    text += QChar(code);
    return count > 0 || fail(place_, u"A hexadecimal digit is missing"_s);
}

/// One to three digits make a byte of the format's own encoding.
void StringsTextParser::readOctal(QString &text)
{
    unsigned int code = 0;
    for (int count = 0; count < 3 && isDigit(peek(), u'7'); ++count)
        code = (code * 8) + (text_[place_++].unicode() - u'0');
    text += nextStepCharacter(static_cast<unsigned char>(code & 0xFF));
}

/// Passes over a list, a dictionary or bytes. Of what they hold, only quotes, comments and brackets are checked.
bool StringsTextParser::skipContainer()
{
    const qsizetype start = place_;
    QVarLengthArray<QChar, StringsFile::deepestNesting> ends;
    while (!isAtEnd()) {
        if (const auto end = closing(peek())) {
            if (ends.size() >= StringsFile::deepestNesting)
                return fail(place_,
                            u"There are more than %1 brackets in each other"_s.arg(StringsFile::deepestNesting));
            ends.append(*end);
            ++place_;
        } else if (take(ends.last().unicode())) {
            ends.removeLast();
            if (ends.isEmpty())
                return true;
        } else if (!skipInContainer()) {
            return false;
        }
    }
    return fail(start, u"The bracket isn't closed"_s);
}

bool StringsTextParser::skipInContainer()
{
    const qsizetype start = place_;
    if (!skipBlanks())
        return false;
    return place_ != start || take(u'=') || take(u',') || take(u';') || readText();
}

bool StringsTextParser::skipBlanks()
{
    while (!isAtEnd()) {
        if (isBlank(peek())) {
            ++place_;
        } else if (peek() == u'/' && peek(1) == u'/') {
            skipLineComment();
        } else if (peek() == u'/' && peek(1) == u'*') {
            if (!skipBlockComment())
                return false;
        } else {
            break;
        }
    }
    return true;
}

bool StringsTextParser::skipBlockComment()
{
    const qsizetype end = text_.indexOf("*/"_L1, place_ + 2);
    if (end < 0)
        return fail(place_, u"The comment isn't closed"_s);
    place_ = end + 2;
    return true;
}

void StringsTextParser::skipLineComment()
{
    while (!isAtEnd() && !isLineEnd(peek()))
        ++place_;
}

QChar StringsTextParser::peek(qsizetype ahead) const
{
    return place_ + ahead < text_.size() ? text_[place_ + ahead] : QChar();
}

bool StringsTextParser::take(char16_t character)
{
    if (isAtEnd() || text_[place_] != character)
        return false;
    ++place_;
    return true;
}

bool StringsTextParser::fail(qsizetype place, const QString &reason)
{
    failure_ = {reason, placeIn(text_.first(place))};
    return false;
}

} // namespace vantrel
