#include "KeyboardShortcuts/EvdevKeyCodes.h"

#include <gtest/gtest.h>

#include <set>

namespace vantrel {
namespace {

TEST(EvdevKeyCodes, KeysAreKnownByTheirPlace)
{
    // A, Return, Space, Escape, Backspace, F1, F13, F20, keypad 7, keypad Enter, up.
    const std::pair<std::uint32_t, std::uint32_t> keys[] = {
        {0, 30},    {36, 28},  {49, 57}, {53, 1},  {51, 14},   {122, 59},
        {105, 183}, {90, 190}, {89, 71}, {76, 96}, {126, 103},
    };
    for (const auto &[keyCode, evdevCode] : keys) {
        EXPECT_EQ(evdevKeyCode(keyCode), evdevCode) << keyCode;
        EXPECT_EQ(keyCodeOfEvdev(evdevCode), keyCode) << evdevCode;
    }
}

TEST(EvdevKeyCodes, WhatIsTranslatedThereAndBackIsTheSame)
{
    std::set<std::uint32_t> evdevCodes;
    for (std::uint32_t keyCode = 0; keyCode < 256; ++keyCode) {
        const auto evdevCode = evdevKeyCode(keyCode);
        if (!evdevCode)
            continue;
        EXPECT_EQ(keyCodeOfEvdev(*evdevCode), keyCode) << keyCode;
        EXPECT_TRUE(evdevCodes.insert(*evdevCode).second) << keyCode;
        // X has no numbers beyond 255.
        EXPECT_LE(*evdevCode + firstXKeyCode, 255U) << keyCode;
    }
    EXPECT_EQ(evdevCodes.size(), 119U);
}

TEST(EvdevKeyCodes, InsertStandsWhereHelpIs)
{
    EXPECT_EQ(evdevKeyCode(114), 110U);
    EXPECT_EQ(keyCodeOfEvdev(110), 114U);
}

TEST(EvdevKeyCodes, NumbersWithoutAKeyHaveNone)
{
    for (const std::uint32_t keyCode : {0x34U, 0x3fU, 0x42U, 0x7fU, 0xffU, 0x100U, 0xffffffffU})
        EXPECT_EQ(evdevKeyCode(keyCode), std::nullopt) << keyCode;
    // Nothing, Scroll Lock, Pause, beyond X.
    for (const std::uint32_t evdevCode : {0U, 70U, 119U, 255U, 464U, 0xffffffffU})
        EXPECT_EQ(keyCodeOfEvdev(evdevCode), std::nullopt) << evdevCode;
}

} // namespace
} // namespace vantrel
