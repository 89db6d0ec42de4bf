#include "Vantrel/Actions/FoldedText.h"

namespace vantrel {
namespace {

/// Accents, points and tone marks, but not the vowel signs of Indic scripts, which no word can do without: only the
/// former have a combining class.
bool isDiacritic(char32_t character)
{
    return QChar::combiningClass(character) != 0 && QChar::category(character) == QChar::Mark_NonSpacing;
}

QString withoutDiacritics(const QString &decomposed)
{
    QString bare;
    bare.reserve(decomposed.size());
    for (qsizetype at = 0; at < decomposed.size(); ++at) {
        const QChar first = decomposed.at(at);
        const bool isPair =
            first.isHighSurrogate() && at + 1 < decomposed.size() && decomposed.at(at + 1).isLowSurrogate();
        const char32_t character =
            isPair ? QChar::surrogateToUcs4(first, decomposed.at(at + 1)) : char32_t{first.unicode()};
        if (!isDiacritic(character))
            bare.append(QStringView(decomposed).sliced(at, isPair ? 2 : 1));
        at += isPair ? 1 : 0;
    }
    return bare;
}

} // namespace

// The Unicode Standard's compatibility caseless matching (section 3.13), with the diacritics left out between its
// steps. A collator would not do: Qt's compares whole texts and finds nothing inside of one, and its keys take a
// hundred times as long to make. Of the languages that have rules of their own for case, Turkish and Azerbaijani are
// the ones whose letters would miss each other, "I" and "i" being two letters there. The dot counts as a diacritic
// here, in every language: a Turkish user then finds "INTERNET" and "İstanbul" by what they type, and so does everybody
// else. The answers therefore don't depend on the locale, and what is folded once stays good.
QString foldedText(const QString &text)
{
    const QString bare = withoutDiacritics(text.normalized(QString::NormalizationForm_KD));
    // Qt folds letter by letter, and so "ß" stays. Its capital form is "SS", and that of "ı" is "I".
    return bare.toCaseFolded().toUpper().toCaseFolded();
}

} // namespace vantrel
