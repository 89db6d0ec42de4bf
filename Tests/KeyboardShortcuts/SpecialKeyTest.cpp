#include "KeyboardShortcuts/SpecialKey.h"

#include "Tests/VantrelKit/Printing.h"
#include "Tests/VantrelKit/TranslatedProgram.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(SpecialKey, ThereAre53AndEachIsFoundByItsCode)
{
    EXPECT_EQ(specialKeyCount, 53);
    QSet<std::uint32_t> codes;
    QSet<QString> texts;
    for (int number = 0; number < specialKeyCount; ++number) {
        const auto key = static_cast<SpecialKey>(number);
        EXPECT_EQ(specialKey(keyCode(key)), key) << number;
        codes.insert(keyCode(key));
        texts.insert(presentableText(key));
    }
    EXPECT_EQ(codes.size(), 53);
    EXPECT_EQ(texts.size(), 53);
}

TEST(SpecialKey, KeysHaveTheirCodesAndTexts)
{
    const std::tuple<SpecialKey, std::uint32_t, QString> rows[] = {
        {SpecialKey::returnKey, 36, u"\u21a9"_s},
        {SpecialKey::deleteKey, 51, u"\u232b"_s},
        {SpecialKey::deleteForward, 117, u"\u2326"_s},
        {SpecialKey::end, 119, u"\u2198"_s},
        {SpecialKey::escape, 53, u"\u238b"_s},
        {SpecialKey::help, 114, u"?\u20dd"_s},
        {SpecialKey::home, 115, u"\u2196"_s},
        {SpecialKey::space, 49, u"Space"_s},
        {SpecialKey::tab, 48, u"\u21e5"_s},
        {SpecialKey::pageUp, 116, u"\u21de"_s},
        {SpecialKey::pageDown, 121, u"\u21df"_s},
        {SpecialKey::upArrow, 126, u"\u2191"_s},
        {SpecialKey::rightArrow, 124, u"\u2192"_s},
        {SpecialKey::downArrow, 125, u"\u2193"_s},
        {SpecialKey::leftArrow, 123, u"\u2190"_s},
        {SpecialKey::keypadClear, 71, u"\u2612\u20e3"_s},
        {SpecialKey::keypadDecimal, 65, u".\u20e3"_s},
        {SpecialKey::keypadDivide, 75, u"/\u20e3"_s},
        {SpecialKey::keypadEnter, 76, u"\u21a9\u20e3"_s},
        {SpecialKey::keypadEquals, 81, u"=\u20e3"_s},
        {SpecialKey::keypadMinus, 78, u"-\u20e3"_s},
        {SpecialKey::keypadMultiply, 67, u"*\u20e3"_s},
        {SpecialKey::keypadPlus, 69, u"+\u20e3"_s},
    };
    for (const auto &[key, code, text] : rows) {
        EXPECT_EQ(keyCode(key), code);
        EXPECT_EQ(presentableText(key), text) << code;
    }
}

TEST(SpecialKey, FunctionKeysAndTheKeypadAreNumbered)
{
    const std::uint32_t functionKeys[] = {122, 120, 99,  118, 96,  97,  98, 100, 101, 109,
                                          103, 111, 105, 107, 113, 106, 64, 79,  80,  90};
    for (int number = 1; number <= 20; ++number) {
        const auto key = specialKey(functionKeys[number - 1]);
        ASSERT_TRUE(key.has_value()) << number;
        EXPECT_EQ(presentableText(*key), u'F' + QString::number(number));
    }
    const std::uint32_t digits[] = {82, 83, 84, 85, 86, 87, 88, 89, 91, 92};
    for (int digit = 0; digit <= 9; ++digit) {
        const auto key = specialKey(digits[digit]);
        ASSERT_TRUE(key.has_value()) << digit;
        EXPECT_EQ(presentableText(*key), QString::number(digit) + QChar(0x20e3));
    }
}

TEST(SpecialKey, OtherKeysAreNone)
{
    for (const qint64 code : {qint64{0}, qint64{-1}, qint64{10}, qint64{55}, qint64{128}, qint64{1} << 40})
        EXPECT_EQ(specialKey(code), std::nullopt) << code;
}

TEST(SpecialKey, TheSpaceBarHasANameInTheUsersLanguage)
{
    const test::TranslatedProgram program(
        [](const QString &text) { return text == "Space"_L1 ? u"Leertaste"_s : text + u'?'; });
    EXPECT_EQ(presentableText(SpecialKey::space), u"Leertaste"_s);
    EXPECT_EQ(presentableText(SpecialKey::f5), u"F5"_s);
}

} // namespace
} // namespace vantrel
