#include "VantrelKit/Safari/NextStepCharacter.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace vantrel {
namespace {

TEST(NextStepCharacter, TheLowerHalfIsAscii)
{
    for (unsigned char byte = 0; byte < 0x80; ++byte)
        EXPECT_EQ(nextStepCharacter(byte).unicode(), byte);
}

TEST(NextStepCharacter, TheUpperHalfIsTheEncodingsOwn)
{
    const std::vector<std::pair<unsigned char, char16_t>> rows{
        {0x80, u'\u00A0'}, {0x81, u'\u00C0'}, {0x85, u'\u00C4'}, {0x9D, u'\u00B5'}, {0x9F, u'\u00F7'},
        {0xA0, u'\u00A9'}, {0xA9, u'\u2019'}, {0xAE, u'\uFB01'}, {0xBC, u'\u2026'}, {0xBF, u'\u00BF'},
        {0xCF, u'\u02C7'}, {0xD0, u'\u2014'}, {0xD9, u'\u00E4'}, {0xDD, u'\u00E9'}, {0xE1, u'\u00C6'},
        {0xEA, u'\u0152'}, {0xF5, u'\u0131'}, {0xFB, u'\u00DF'}, {0xFD, u'\u00FF'}, {0xFE, u'\uFFFD'},
        {0xFF, u'\uFFFD'},
    };
    for (const auto &[byte, character] : rows)
        EXPECT_EQ(nextStepCharacter(byte).unicode(), character) << static_cast<int>(byte);
}

TEST(NextStepCharacter, NoTwoBytesStandForTheSameCharacter)
{
    std::set<char16_t> characters;
    for (int byte = 0; byte < 0xFE; ++byte)
        characters.insert(nextStepCharacter(static_cast<unsigned char>(byte)).unicode());
    EXPECT_EQ(characters.size(), 0xFE);
}

} // namespace
} // namespace vantrel
