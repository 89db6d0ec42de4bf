#include "VantrelKit/PrintableText.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(PrintableText, WhatMovesTheCursorIsEscaped)
{
    const std::vector<std::pair<QString, QString>> rows{
        {u"a\nb"_s, u"a\\nb"_s},
        {u"a\r\nb"_s, u"a\\r\\nb"_s},
        {u"a\tb"_s, u"a\\tb"_s},
        {u"\x1b[31mred\x1b[0m"_s, u"\\x1b[31mred\\x1b[0m"_s},
        {u"\a\b\v\f"_s, u"\\x07\\x08\\x0b\\x0c"_s},
        {u"nul\0in"_s, u"nul\\x00in"_s},
        {u"\x7f"_s, u"\\x7f"_s},
        {u"\x01\x1f"_s, u"\\x01\\x1f"_s},
        {u"\u0080\u0085\u009b\u009f"_s, u"\\x80\\x85\\x9b\\x9f"_s},
        {u"\u2028\u2029"_s, u"\\u2028\\u2029"_s},
    };
    for (const auto &[text, expected] : rows)
        EXPECT_EQ(printable(text), expected);
}

TEST(PrintableText, WhatReordersTextIsEscaped)
{
    const QString controls = u"\u202a\u202b\u202c\u202d\u202e\u2066\u2067\u2068\u2069"_s;
    EXPECT_EQ(printable(controls), u"\\u202a\\u202b\\u202c\\u202d\\u202e\\u2066\\u2067\\u2068\\u2069"_s);
    EXPECT_EQ(printable(u"invoice\u202efdp.exe"_s), u"invoice\\u202efdp.exe"_s);
}

TEST(PrintableText, AnythingElseStaysAsItIs)
{
    for (const QString &text :
         {QString(), u" two  blanks "_s, u"back\\slash \\n \\x1b"_s, u"'\"`$%&<>|;"_s, u"~\u00a0\u00ad\u00e9"_s,
          u"\u05e9\u05dc\u05d5\u05dd"_s, u"\u65e5\u672c\u8a9e"_s, u"e\u0301"_s, u"\U0001F468\u200d\U0001F469"_s,
          u"\u2027\u202f\u2065\u206a"_s, u"\ufffd\uffff\U0010FFFF"_s})
        EXPECT_EQ(printable(text), text);
}

TEST(PrintableText, NoOddTextHasAControlCharacterLeft)
{
    for (const QString &text : test::oddTexts()) {
        const QString visible = printable(text);
        for (const QChar character : visible)
            EXPECT_NE(character.category(), QChar::Other_Control) << text.toStdString();
        EXPECT_EQ(printable(visible), visible) << "Escaping twice changes nothing.";
    }
}

/// Sets what the C library knows of characters, and puts it back.
class CharacterLocale {
public:
    explicit CharacterLocale(const char *name) : former_(std::setlocale(LC_CTYPE, nullptr))
    {
        EXPECT_NE(std::setlocale(LC_CTYPE, name), nullptr) << name;
    }
    ~CharacterLocale() { std::setlocale(LC_CTYPE, former_.c_str()); }
    Q_DISABLE_COPY_MOVE(CharacterLocale)

private:
    std::string former_;
};

TEST(PrintableText, ATextTakesAsManyColumnsAsATerminalGivesIt)
{
    const CharacterLocale locale("C.UTF-8");
    const std::vector<std::pair<QString, qsizetype>> rows{
        {QString(), 0},         {u"abc"_s, 3},          {u"Wörk – x"_s, 8},
        {u"e\u0301"_s, 1},      {u"\u65e5\u672c"_s, 4}, {u"\U0001F600"_s, 2},
        {u"\u05e9\u05dc"_s, 2}, {u"\x01"_s, 1},         {QString(1000, u'x'), 1000},
    };
    for (const auto &[text, expected] : rows)
        EXPECT_EQ(columns(text), expected) << text.toStdString();
}

TEST(PrintableText, WithoutALocaleEveryCharacterTakesAColumn)
{
    const CharacterLocale locale("C");
    EXPECT_EQ(columns(u"abc"_s), 3);
    EXPECT_EQ(columns(u"\u65e5\u672c\U0001F600"_s), 3);
}

} // namespace
} // namespace vantrel
