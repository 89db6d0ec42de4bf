#include "VantrelKit/Safari/CanonicalText.h"

namespace vantrel {
namespace {

/// Beyond this, texts are no titles or names, and putting long rows of accents into order takes quadratic time.
constexpr qsizetype longestNormalized = 4096;

} // namespace

bool isSameText(const QString &text, const QString &other)
{
    if (text == other)
        return true;
    if (text.size() > longestNormalized || other.size() > longestNormalized)
        return false;
    return text.normalized(QString::NormalizationForm_C) == other.normalized(QString::NormalizationForm_C);
}

} // namespace vantrel
