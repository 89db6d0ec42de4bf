#include "VantrelKit/Safari/StringsTextParser.h"

#include "Tests/VantrelKit/Safari/StringsTexts.h"

#include <gtest/gtest.h>

#include <chrono>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Rows = std::vector<std::pair<QString, QString>>;

QString parsed(const QString &text)
{
    return test::shown(StringsTextParser(text).parse());
}

void expectParsed(const Rows &rows)
{
    for (const auto &[text, result] : rows)
        EXPECT_EQ(parsed(text), result) << text.toStdString();
}

/// The value of a key that is written in this way.
QString value(const QString &written)
{
    const QString text = u"key = "_s + written + u';';
    const auto file = StringsTextParser(text).parse();
    return file ? file->texts.value(u"key"_s) : file.error().message();
}

TEST(StringsTextParser, ReadsKeysAndTexts)
{
    expectParsed({
        {u""_s, u""_s},
        {u" \t\r\n\v\f\u2028\u2029"_s, u""_s},
        {u"\"a\" = \"b\";"_s, u"a=b"_s},
        {u"\"a\"=\"b\";\"c\"=\"d\";"_s, u"a=b;c=d"_s},
        {u"\n\"a b\"\n=\n\"c d\"\n;\n"_s, u"a b=c d"_s},
        {u"a = b;"_s, u"a=b"_s},
        {u"81.title = $a_b/c:d.e-f9;"_s, u"81.title=$a_b/c:d.e-f9"_s},
        {u"http://x = y;"_s, u"http://x=y"_s},
        {u"'a\"' = 'b';"_s, u"a\"=b"_s},
        {u"\"a'\" = \"it's\";"_s, u"a'=it's"_s},
        {u"\"\" = \"\";"_s, u"="_s},
        {u"a = \"\";"_s, u"a="_s},
        {u"\"ö\" = \"\u0645\u0644\u0641\";"_s, u"ö=\u0645\u0644\u0641"_s},
        {u"\"New %@ Window\" = \"%1$@ \u200FWindow\";"_s, u"New %@ Window=%1$@ \u200FWindow"_s},
        {u"\"a\nb\" = \"c\r\nd\";"_s, u"a\nb=c\r\nd"_s},
        {u"a = b; a = c;"_s, u"a=c"_s},
    });
}

TEST(StringsTextParser, AKeyAloneIsItsOwnText)
{
    expectParsed({
        {u"key;"_s, u"key=key"_s},
        {u"\"a b\" ; c = d;"_s, u"a b=a b;c=d"_s},
        {u"{ key; }"_s, u"key=key"_s},
    });
}

TEST(StringsTextParser, PassesOverComments)
{
    expectParsed({
        {u"/* a = b; */"_s, u""_s},
        {u"// a = b;"_s, u""_s},
        {u"// a = b;\nc = d; // e"_s, u"c=d"_s},
        {u"// a = b;\rc = d;"_s, u"c=d"_s},
        {u"/**/a /**/=/***/b /* ; */;/* \" */"_s, u"a=b"_s},
        {u"/* /* */ a = b;"_s, u"a=b"_s},
        {u"/* // */ a = b;"_s, u"a=b"_s},
        {u"// /*\na = b;"_s, u"a=b"_s},
        {u"/* \"\n\" */\n\"a\" // x\n = // ;\n \"b\";"_s, u"a=b"_s},
        {u"\"/* a */\" = \"// b\";"_s, u"/* a */=// b"_s},
        {u"/ = /a;"_s, u"/=/a"_s},
        {u"a/**/ = b;"_s, u"line 1, column 3: An equals sign or a semicolon is missing"_s},
    });
}

TEST(StringsTextParser, BracesMayStandAroundTheEntries)
{
    expectParsed({
        {u"{}"_s, u""_s},
        {u" { a = b; c; } "_s, u"a=b;c=c"_s},
        {u"/* x */{/* y */}// z"_s, u""_s},
        {u"{ a = b; "_s, u"line 1, column 1: The brace isn't closed"_s},
        {u"{ a = b; } c = d;"_s, u"line 1, column 12: Nothing may follow the closing brace"_s},
        {u"{}}"_s, u"line 1, column 3: Nothing may follow the closing brace"_s},
        {u"}"_s, u"line 1, column 1: A text is missing"_s},
        {u"{ a = b }"_s, u"line 1, column 9: A semicolon is missing"_s},
    });
}

TEST(StringsTextParser, ReadsEscapes)
{
    const Rows rows{
        {uR"("\"")"_s, u"\""_s},
        {uR"('\'\"')"_s, u"'\""_s},
        {uR"("\\")"_s, u"\\"_s},
        {uR"("\\n")"_s, u"\\n"_s},
        {uR"("\a\b\f\n\r\t\v")"_s, u"\a\b\f\n\r\t\v"_s},
        {uR"("\e\q\%\/\ö")"_s, u"eq%/ö"_s},
        {u"\"a\\\nb\""_s, u"a\nb"_s},
        {uR"("\U0041\u0041")"_s, u"AA"_s},
        {uR"("\U7de8\U7DE8")"_s, u"\u7DE8\u7DE8"_s},
        {uR"("\U00411")"_s, u"A1"_s},
        {uR"("\U41 \u4z")"_s, u"A \u0004z"_s},
        {uR"("\UD83D\UDE00")"_s, u"\U0001F600"_s},
        {uR"("\UD83Dx\UDE00")"_s, u"\uFFFDx\uFFFD"_s},
        {uR"("\UDE00\UD83D")"_s, u"\uFFFD\uFFFD"_s},
        {u"\"\xD83D\""_s, u"\uFFFD"_s},
        {uR"("\101\60\7")"_s, u"A0\a"_s},
        {uR"("\1011\08")"_s, QString(u"A1\0"_s + u'8')},
        {uR"("\331\341\320")"_s, u"ä\u00C6\u2014"_s},
        {uR"("\376\401")"_s, u"\uFFFD\u0001"_s},
        {uR"("\u2068%@\U2069")"_s, u"\u2068%@\u2069"_s},
    };
    for (const auto &[written, text] : rows)
        EXPECT_EQ(value(written), text) << written.toStdString();
}

TEST(StringsTextParser, KeysHaveEscapesToo)
{
    expectParsed({{uR"("\"a\"\U0041" = b;)"_s, u"\"a\"A=b"_s}, {uR"('\101';)"_s, u"A=A"_s}});
}

TEST(StringsTextParser, PassesOverValuesThatAreNoTexts)
{
    expectParsed({
        {u"a = (); b = c;"_s, u"a?;b=c"_s},
        {u"a = {}; b = <>;"_s, u"a?;b?"_s},
        {u"a = (1, \"2)\", (3), { b = c; });"_s, u"a?"_s},
        {u"a = <0fbd 77>; c = d;"_s, u"a?;c=d"_s},
        {u"a = { b = ( /* ) */ // )\n '}' ); };"_s, u"a?"_s},
        {u"a = b; a = ();"_s, u"a?"_s},
        {u"a = (); a = b;"_s, u"a=b"_s},
    });
}

TEST(StringsTextParser, SaysWhereAndWhyATextIsNoStringsFile)
{
    expectParsed({
        {u"\"a\""_s, u"line 1, column 4: An equals sign or a semicolon is missing"_s},
        {u"a b;"_s, u"line 1, column 3: An equals sign or a semicolon is missing"_s},
        {u"a = b"_s, u"line 1, column 6: A semicolon is missing"_s},
        {u"a = b c;"_s, u"line 1, column 7: A semicolon is missing"_s},
        {u"a = b = c;"_s, u"line 1, column 7: A semicolon is missing"_s},
        {u"a = \"b\"c;"_s, u"line 1, column 8: A semicolon is missing"_s},
        {u"a = ;"_s, u"line 1, column 5: A text is missing"_s},
        {u"a ="_s, u"line 1, column 4: A text is missing"_s},
        {u"= b;"_s, u"line 1, column 1: A text is missing"_s},
        {u";"_s, u"line 1, column 1: A text is missing"_s},
        {u"ö = b;"_s, u"line 1, column 1: A text is missing"_s},
        {u"a = b;\0"_s, u"line 1, column 7: A text is missing"_s},
        {u"(a, b)"_s, u"line 1, column 1: A text is missing"_s},
        {u"{\"a\": 1}"_s, u"line 1, column 5: An equals sign or a semicolon is missing"_s},
        {u"\n\n  \"a"_s, u"line 3, column 3: The quote isn't closed"_s},
        {u"\r\n\r\n\"a\\"_s, u"line 3, column 3: A character is missing behind the backslash"_s},
        {u"\"a\\\""_s, u"line 1, column 1: The quote isn't closed"_s},
        {u"\"\\U\""_s, u"line 1, column 4: A hexadecimal digit is missing"_s},
        {u"\"\\uxyz\""_s, u"line 1, column 4: A hexadecimal digit is missing"_s},
        {u"a;\r /* b"_s, u"line 2, column 2: The comment isn't closed"_s},
        {u"a;\u2028/*/"_s, u"line 2, column 1: The comment isn't closed"_s},
        {u"a = /* b"_s, u"line 1, column 5: The comment isn't closed"_s},
        {u"a /* b"_s, u"line 1, column 3: The comment isn't closed"_s},
        {u"a = b /*"_s, u"line 1, column 7: The comment isn't closed"_s},
        {u"a = (b;"_s, u"line 1, column 5: The bracket isn't closed"_s},
        {u"a = (b};"_s, u"line 1, column 7: A text is missing"_s},
        {u"a = (\"b);"_s, u"line 1, column 6: The quote isn't closed"_s},
        {u"a = ( /* b);"_s, u"line 1, column 7: The comment isn't closed"_s},
        {u"a = ()"_s, u"line 1, column 7: A semicolon is missing"_s},
        {u"() = a;"_s, u"line 1, column 1: A text is missing"_s},
    });
}

TEST(StringsTextParser, BracketsLieInEachOtherOnlySoDeep)
{
    const auto nested = [](qsizetype depth) {
        return QString(u"a = "_s + QString(depth, u'(') + QString(depth, u')') + u';');
    };
    EXPECT_EQ(parsed(nested(StringsFile::deepestNesting)), u"a?"_s);
    EXPECT_EQ(parsed(nested(StringsFile::deepestNesting + 1)),
              u"line 1, column 37: There are more than 32 brackets in each other"_s);
    EXPECT_EQ(parsed(nested(1'000'000)), u"line 1, column 37: There are more than 32 brackets in each other"_s);
}

TEST(StringsTextParser, ThereAreOnlySoManyKeys)
{
    QString text;
    for (qsizetype key = 0; key < StringsFile::mostKeys; ++key)
        text += QString::number(key) + (key % 2 == 0 ? u";"_s : u"=();"_s);
    const auto file = StringsTextParser(text).parse();
    ASSERT_TRUE(file) << file.error().message().toStdString();
    EXPECT_EQ(file->texts.size() + file->otherKeys.size(), StringsFile::mostKeys);
    EXPECT_FALSE(parsed(text + u"1 = again;"_s).contains(u"There are more"_s));
    EXPECT_TRUE(parsed(text + u"another;"_s).endsWith(u"There are more than 20000 keys"_s));
    EXPECT_TRUE(parsed(text + u"another = ();"_s).endsWith(u"There are more than 20000 keys"_s));
}

TEST(StringsTextParser, NoTextTakesLong)
{
    using namespace std::chrono_literals;
    const auto start = std::chrono::steady_clock::now();
    for (const QString &part : {u"/"_s, u"/*"_s, u"/**/"_s, u"//\n"_s, u"\""_s, u"\"\\"_s, u"a=b;"_s, u"a=();"_s,
                                u"a=("_s, u"\n"_s, u"{"_s, u"\\"_s, u"'\\UD800'"_s, u"\xD800"_s}) {
        const QString many = part.repeated(1'000'000 / part.size());
        EXPECT_NE(parsed(many), u"x"_s);
        EXPECT_NE(parsed(u"key = \""_s + many), u"x"_s);
        EXPECT_NE(parsed(u"key = ("_s + many), u"x"_s);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, 60s);
}

TEST(StringsTextParser, NoPartOfAFileIsMistakenForTheWhole)
{
    const QString text = u"/* c */ \"a\\\"b\" = 'c\\U0041'; // d\nkey = ( 1, { x = y; } );\n{"_s;
    const QString whole = text.chopped(1);
    EXPECT_EQ(parsed(whole), u"a\"b=cA;key?"_s);
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        const auto file = StringsTextParser(QStringView(whole).first(size)).parse();
        const bool isBetweenEntries =
            size == 0 || (size >= 7 && size <= 8) || (size >= 27 && size <= 33 && size != 29) || size >= 57;
        EXPECT_EQ(file.has_value(), isBetweenEntries) << size;
    }
}

} // namespace
} // namespace vantrel
