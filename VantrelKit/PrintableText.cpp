#include "VantrelKit/PrintableText.h"

#include <QList>

#include <algorithm>
#include <cwchar>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Embeddings, overrides and isolates: they can make one name look like another.
bool isDirectionControl(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

/// Letters, digits and signs of ASCII, and the blank: most of what is printed, and the simplest.
constexpr bool isPlain(char32_t character)
{
    return character >= U' ' && character <= U'~';
}

bool needsEscape(QChar character)
{
    if (isPlain(character.unicode()))
        return false;
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph || isDirectionControl(character);
}

QString escape(QChar character)
{
    switch (character.unicode()) {
    case u'\n': return u"\\n"_s;
    case u'\r': return u"\\r"_s;
    case u'\t': return u"\\t"_s;
    default: break;
    }
    const char16_t code = character.unicode();
    return code < 0x100 ? u"\\x%1"_s.arg(code, 2, 16, QChar(u'0')) : u"\\u%1"_s.arg(code, 4, 16, QChar(u'0'));
}

} // namespace

QString printable(const QString &text)
{
    if (std::ranges::none_of(text, needsEscape))
        return text;
    QString result;
    for (const QChar character : text) {
        if (needsEscape(character))
            result.append(escape(character));
        else
            result.append(character);
    }
    return result;
}

qsizetype columns(const QString &text)
{
    qsizetype count = 0;
    for (const char32_t character : text.toUcs4()) {
        const int width = isPlain(character) ? 1 : wcwidth(static_cast<wchar_t>(character));
        // Negative when the locale knows no such character.
        count += width < 0 ? 1 : width;
    }
    return count;
}

} // namespace vantrel
