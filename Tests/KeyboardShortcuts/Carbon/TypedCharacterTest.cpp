#include "KeyboardShortcuts/Carbon/TypedCharacter.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(TypedCharacter, OneCharacterIsTakenAsTheLayoutHasIt)
{
    for (const QString &typed : {u"a"_s, u"1"_s, u"ß"_s, u"ж"_s, u" "_s, u"^"_s})
        EXPECT_EQ(typedCharacter(typed), typed) << typed.toStdString();
}

TEST(TypedCharacter, ACharacterOfTwoUnitsIsOne)
{
    EXPECT_EQ(typedCharacter(u"\U0001D538"_s), u"\U0001D538"_s);
}

TEST(TypedCharacter, NothingAndSeveralCharactersAreNone)
{
    for (const QString &typed : {u""_s, u"ij"_s, u"´´"_s})
        EXPECT_EQ(typedCharacter(typed), std::nullopt) << typed.toStdString();
}

TEST(TypedCharacter, WhatActsIsNone)
{
    for (const char16_t typed : {u'\0', u'\r', u'\t', u'\x1b', u'\x1c', u'\x7f', u'\x85'})
        EXPECT_EQ(typedCharacter(QStringView(&typed, 1)), std::nullopt) << static_cast<int>(typed);
}

} // namespace
} // namespace vantrel
