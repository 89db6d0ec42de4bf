#include "VantrelKit/DecimalInteger.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr qint64 largest = std::numeric_limits<qint64>::max();
constexpr qint64 smallest = std::numeric_limits<qint64>::min();

TEST(DecimalInteger, DigitsBehindAnOptionalSignAreANumber)
{
    const std::vector<std::pair<QString, qint64>> rows{
        {u"0"_s, 0},
        {u"1"_s, 1},
        {u"01"_s, 1},
        {u"0000000000000000000000000000007"_s, 7},
        {u"+5"_s, 5},
        {u"-5"_s, -5},
        {u"-0"_s, 0},
        {u"+0"_s, 0},
        {u"10"_s, 10},
        {u"9223372036854775807"_s, largest},
        {u"+9223372036854775807"_s, largest},
        {u"-9223372036854775808"_s, smallest},
    };
    for (const auto &[text, number] : rows)
        EXPECT_EQ(decimalInteger(text), number) << text.toStdString();
}

TEST(DecimalInteger, EverythingElseIsNone)
{
    const QStringList texts{
        {},
        u""_s,
        u"+"_s,
        u"-"_s,
        u"+-5"_s,
        u"-+5"_s,
        u"--5"_s,
        u"++5"_s,
        u" 1"_s,
        u"1 "_s,
        u"1\n"_s,
        u"1.0"_s,
        u"1e3"_s,
        u"0x10"_s,
        u"1_000"_s,
        u"1,000"_s,
        u"a"_s,
        u"1a"_s,
        u"\u0661"_s,
        u"\uff11"_s,
        u"1\0"_s,
        u"\u22121"_s,
        u"9223372036854775808"_s,
        u"-9223372036854775809"_s,
        u"99999999999999999999999999"_s,
    };
    for (const QString &text : texts)
        EXPECT_EQ(decimalInteger(text), std::nullopt) << text.toStdString();
    for (const QString &text : test::oddTexts() + test::loneSurrogates())
        EXPECT_EQ(decimalInteger(text), std::nullopt) << text.toStdString();
}

} // namespace
} // namespace vantrel
