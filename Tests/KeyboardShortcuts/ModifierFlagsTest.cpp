#include "KeyboardShortcuts/ModifierFlags.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(ModifierFlags, EachOfTheFiveHasItsBitOnBothSides)
{
    const std::pair<std::uint32_t, std::uint32_t> pairs[] = {
        {0x40000, 0x1000}, {0x80000, 0x800}, {0x20000, 0x200}, {0x100000, 0x100}, {0x800000, 0x20000},
    };
    for (const auto &[appKit, carbon] : pairs) {
        EXPECT_EQ(carbonModifiers(appKit), carbon);
        EXPECT_EQ(appKitFlags(carbon), appKit);
    }
    EXPECT_EQ(carbonModifiers(0x40000 | 0x100000), 4352U);
    EXPECT_EQ(appKitFlags(4352), 0x140000U);
}

TEST(ModifierFlags, EverythingElseIsDropped)
{
    EXPECT_EQ(carbonModifiers(AppKitFlag::capsLock | AppKitFlag::numericPad | AppKitFlag::help | 0xff00'ffff), 0U);
    EXPECT_EQ(carbonModifiers(0xffff'ffff), 0x21b00U);
    EXPECT_EQ(appKitFlags(0x400 | 0x2000 | 0x4000 | 0xff), 0U);
    EXPECT_EQ(appKitFlags(-1), 0x9e0000U);
}

TEST(ModifierFlags, NormalizingKeepsTheFiveBits)
{
    EXPECT_EQ(normalizedModifiers(0xffff'ffff), 0x21b00U);
    EXPECT_EQ(normalizedModifiers(0x1400), 0x1000U);
    EXPECT_EQ(normalizedModifiers(0), 0U);
}

} // namespace
} // namespace vantrel
