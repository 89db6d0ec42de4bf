#include "Platform/FittedRect.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(FittedRect, APictureFillsTheSquareInItsLongerDirectionAndLiesInItsMiddle)
{
    EXPECT_EQ(fittedRect({16, 16}, 32), QRectF(0, 0, 32, 32));
    EXPECT_EQ(fittedRect({40, 20}, 20), QRectF(0, 5, 20, 10));
    EXPECT_EQ(fittedRect({5, 20}, 10), QRectF(3.75, 0, 2.5, 10));
}

TEST(FittedRect, WhatHasNoExtentLiesNowhere)
{
    EXPECT_TRUE(fittedRect({0, 20}, 10).isEmpty());
    EXPECT_TRUE(fittedRect({}, 10).isEmpty());
}

} // namespace
} // namespace vantrel
