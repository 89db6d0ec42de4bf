#include "Vantrel/Pictures/ProfileInitial.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

void expectInitials(const std::vector<std::pair<QString, QString>> &rows)
{
    for (const auto &[name, initial] : rows)
        EXPECT_EQ(profileInitial(name).toStdString(), initial.toStdString()) << "of \"" << name.toStdString() << '"';
}

TEST(ProfileInitial, IsTheFirstCharacterInUpperCase)
{
    expectInitials({
        {u"Work"_s, u"W"_s},
        {u"work"_s, u"W"_s},
        {u"w"_s, u"W"_s},
        {u"7 of 9"_s, u"7"_s},
        {u"(none)"_s, u"("_s},
        {u"\u00e9t\u00e9"_s, u"\u00c9"_s},
        {u"\u044f\u0431\u043b\u043e\u043a\u043e"_s, u"\u042f"_s},
        {u"\u03bb"_s, u"\u039b"_s},
        {u"\u5de5\u4f5c"_s, u"\u5de5"_s},
        {u"\u05e2\u05d1\u05d5\u05d3\u05d4"_s, u"\u05e2"_s},
        {u"\u0639\u0645\u0644"_s, u"\u0639"_s},
    });
}

TEST(ProfileInitial, CanBecomeTwoLettersInUpperCase)
{
    expectInitials({{u"\u00dfeta"_s, u"SS"_s}, {u"\ufb01ne"_s, u"FI"_s}});
}

TEST(ProfileInitial, LeavesOutTheWhiteSpaceInFront)
{
    expectInitials({
        {u"  home "_s, u"H"_s},
        {u"\t\n\r\nhome"_s, u"H"_s},
        {u"\u00a0\u2003\u3000home"_s, u"H"_s},
        {u"\u2028\u2029\u0085home"_s, u"H"_s},
    });
}

TEST(ProfileInitial, IsAQuestionMarkWhenNothingIsLeft)
{
    for (const QString &name : {QString(), u""_s, u" "_s, u"\t \n"_s, u"\u00a0"_s, u"\u3000\u2029"_s})
        EXPECT_EQ(profileInitial(name), u"?"_s) << '"' << name.toStdString() << '"';
}

TEST(ProfileInitial, KeepsALetterAndItsMarksTogether)
{
    expectInitials({
        {u"e\u0301te\u0301"_s, u"E\u0301"_s},
        {u"o\u0302\u0323x"_s, u"O\u0302\u0323"_s},
        // A vowel sign of Devanagari, a syllable in three letters of Hangul.
        {u"\u0915\u093f\u0924"_s, u"\u0915\u093f"_s},
        {u"\u1112\u1161\u11ab\u1100"_s, u"\u1112\u1161\u11ab"_s},
    });
}

TEST(ProfileInitial, KeepsAnEmojiWhole)
{
    const QString family = u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s;
    const QString waving = u"\U0001F44B\U0001F3FD"_s;
    const QString flag = u"\U0001F1E9\U0001F1EA"_s;
    const QString rainbow = u"\U0001F3F3\uFE0F\u200D\U0001F308"_s;
    for (const QString &emoji : {u"\U0001F600"_s, family, waving, flag, rainbow, u"1\uFE0F\u20E3"_s, u"\u2764\uFE0F"_s})
        expectInitials({{emoji, emoji}, {emoji + u" private"_s, emoji}, {emoji + flag, emoji}});
}

TEST(ProfileInitial, NeverCutsASurrogatePair)
{
    expectInitials({
        {u"\U00020000\U00020001"_s, u"\U00020000"_s},
        // Deseret, whose small letters have capitals, both outside the first plane.
        {u"\U00010428x"_s, u"\U00010400"_s},
    });
    // Half a pair is what a damaged name can begin with.
    const QString half = QString(QChar(0xd83d)) + u"x"_s;
    EXPECT_EQ(profileInitial(half), QString(QChar(0xd83d)));
}

} // namespace
} // namespace vantrel
