#include "Vantrel/Actions/FoldedText.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Whether somebody who types `typed` finds `text`.
bool finds(const QString &typed, const QString &text)
{
    return foldedText(text).contains(foldedText(typed));
}

TEST(FoldedText, CaseMakesNoDifference)
{
    EXPECT_TRUE(finds(u"chrome"_s, u"Google Chrome"_s));
    EXPECT_TRUE(finds(u"CHROME"_s, u"Google Chrome"_s));
    EXPECT_TRUE(finds(u"strasse"_s, u"Große Straße"_s));
    EXPECT_TRUE(finds(u"STRASSE"_s, u"Große Straße"_s));
    EXPECT_TRUE(finds(u"straße"_s, u"GROSSE STRASSE, GROẞE STRAẞE"_s));
    EXPECT_TRUE(finds(u"groẞe"_s, u"große"_s));
    EXPECT_TRUE(finds(u"οδυσσευσ"_s, u"Ὀδυσσεύς"_s));
    EXPECT_TRUE(finds(u"работа"_s, u"РАБОТА"_s));
    EXPECT_TRUE(finds(u"𐐨"_s, u"𐐀"_s));
}

TEST(FoldedText, DiacriticsMakeNoDifferenceHoweverTheyAreWritten)
{
    for (const QString &text : {u"Café"_s, u"Cafe\u0301"_s}) {
        for (const QString &typed : {u"cafe"_s, u"café"_s, u"cafe\u0301"_s, u"CAFÉ"_s})
            EXPECT_TRUE(finds(typed, text)) << typed.toStdString();
    }
    EXPECT_TRUE(finds(u"uber"_s, u"Über uns"_s));
    EXPECT_TRUE(finds(u"viet"_s, u"Việt Nam"_s));
    EXPECT_TRUE(finds(u"שלום"_s, u"שָׁלוֹם"_s));
    EXPECT_TRUE(finds(u"محمد"_s, u"مُحَمَّد"_s));
}

TEST(FoldedText, TheDotOfAnIMakesNoDifference)
{
    for (const QString &typed : {u"istanbul"_s, u"ISTANBUL"_s, u"İSTANBUL"_s, u"ıstanbul"_s})
        EXPECT_TRUE(finds(typed, u"İstanbul"_s)) << typed.toStdString();
    for (const QString &typed : {u"internet"_s, u"ınternet"_s, u"INTERNET"_s})
        EXPECT_TRUE(finds(typed, u"INTERNET"_s)) << typed.toStdString();
}

TEST(FoldedText, CompatibilityFormsMakeNoDifference)
{
    EXPECT_TRUE(finds(u"work"_s, u"Ｗｏｒｋ"_s));
    EXPECT_TRUE(finds(u"office"_s, u"Oﬃce"_s));
    EXPECT_TRUE(finds(u"a b"_s, u"a\u00a0b"_s));
    EXPECT_TRUE(finds(u"ｶﾞ"_s, u"ガ"_s));
}

TEST(FoldedText, LettersThatAreNoOthersWithAMarkStayApart)
{
    EXPECT_FALSE(finds(u"o"_s, u"ø"_s));
    EXPECT_FALSE(finds(u"क"_s, u"ख"_s));
    // Vowel signs are no diacritics.
    EXPECT_FALSE(finds(u"दिन"_s, u"दान"_s));
    EXPECT_FALSE(finds(u"चिता"_s, u"चीता"_s));
    EXPECT_FALSE(finds(u"गुन"_s, u"गन"_s));
    EXPECT_FALSE(finds(u"गन"_s, u"गुन"_s));
}

TEST(FoldedText, ATextThatIsBeingTypedIsFoundAllTheTime)
{
    EXPECT_TRUE(finds(u"하"_s, u"한국"_s));
    EXPECT_TRUE(finds(u"ㅎ"_s, u"한국"_s));
}

TEST(FoldedText, OddTextsAreFoundByThemselves)
{
    for (const QString &text : test::oddTexts())
        EXPECT_TRUE(finds(text, u"before "_s + text + u" after"_s)) << text.toStdString();
    for (const QString &text : test::loneSurrogates())
        EXPECT_EQ(foldedText(foldedText(text)), foldedText(text));
    EXPECT_EQ(foldedText(QString()), QString());
    EXPECT_EQ(foldedText(u"\u0301"_s), QString());
}

} // namespace
} // namespace vantrel
