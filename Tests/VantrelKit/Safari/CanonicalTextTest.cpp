#include "VantrelKit/Safari/CanonicalText.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Row {
    QString text;
    QString other;
    bool isSame = false;
};

TEST(CanonicalText, TextsAreTheSameWhenUnicodeTakesThemForTheSame)
{
    const std::vector<Row> rows{
        {u""_s, QString(), true},
        {u"Work"_s, u"Work"_s, true},
        {u"caf\u00E9"_s, u"cafe\u0301"_s, true},
        {u"\u304C"_s, u"\u304B\u3099"_s, true},
        {u"\uAC00"_s, u"\u1100\u1161"_s, true},
        {u"q\u0307\u0323"_s, u"q\u0323\u0307"_s, true},
        {u"\u212B"_s, u"\u00C5"_s, true},

        {u"Work"_s, u"work"_s, false},
        {u"Work"_s, u"Work "_s, false},
        {u"cafe"_s, u"caf\u00E9"_s, false},
        {u"\uFB01"_s, u"fi"_s, false},
        {u"\uFF21"_s, u"A"_s, false},
        {u"a"_s, u"a\u200F"_s, false},
        {u""_s, u"\0"_s, false},
    };
    for (const auto &[text, other, isSame] : rows) {
        EXPECT_EQ(isSameText(text, other), isSame) << text.toStdString() << " / " << other.toStdString();
        EXPECT_EQ(isSameText(other, text), isSame) << text.toStdString() << " / " << other.toStdString();
    }
}

TEST(CanonicalText, TextsThatAreNoTitlesAreComparedByTheirCharacters)
{
    const QString accents = u"\u0301\u0323"_s.repeated(500'000);
    EXPECT_TRUE(isSameText(accents, accents));
    EXPECT_FALSE(isSameText(accents, u"\u0323\u0301"_s.repeated(500'000)));
    EXPECT_FALSE(isSameText(u"a"_s, accents));
}

} // namespace
} // namespace vantrel
