#include "Vantrel/Pictures/ProfileColor.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(ProfileColor, TheHashIsThePublishedOne)
{
    EXPECT_EQ(fnv1a(""), 0xcbf29ce484222325U);
    EXPECT_EQ(fnv1a("a"), 0xaf63dc4c8601ec8cU);
    EXPECT_EQ(fnv1a("b"), 0xaf63df4c8601f1a5U);
    EXPECT_EQ(fnv1a("foobar"), 0x85944171f73967e8U);
}

TEST(ProfileColor, TheHashTakesBytesForUnsignedNumbersAndDoesNotStopAtZero)
{
    EXPECT_EQ(fnv1a(QByteArray("\xff", 1)), (0xcbf29ce484222325U ^ 0xffU) * 0x100000001b3U);
    EXPECT_EQ(fnv1a(QByteArray("\0", 1)), 0xcbf29ce484222325U * 0x100000001b3U);
    EXPECT_NE(fnv1a(QByteArray("a\0b", 3)), fnv1a("a"));
}

TEST(ProfileColor, EachIndexHasItsColour)
{
    const std::array<std::array<int, 3>, 8> colours{{
        {51, 120, 245},
        {250, 107, 64},
        {38, 173, 97},
        {176, 82, 222},
        {242, 166, 26},
        {26, 166, 191},
        {230, 64, 120},
        {115, 128, 153},
    }};
    std::set<quint64> seen;
    for (int number = 0; number < 64; ++number) {
        const QString id = u"com.google.Chrome/chromium:Profile %1"_s.arg(number);
        const quint64 index = fnv1a(id.toUtf8()) % 8;
        seen.insert(index);
        const auto [red, green, blue] = colours.at(index);
        EXPECT_EQ(profileColor(id), QColor(red, green, blue)) << id.toStdString() << " with index " << index;
        EXPECT_EQ(profileColor(id).alpha(), 255);
    }
    EXPECT_EQ(seen.size(), 8U);
}

TEST(ProfileColor, KnownIdsKeepTheirColours)
{
    // 0xaf63dc4c8601ec8c ends in 4, 0xaf63df4c8601f1a5 in 5, 0x85944171f73967e8 in 0.
    EXPECT_EQ(profileColor(u"a"_s), QColor(242, 166, 26));
    EXPECT_EQ(profileColor(u"b"_s), QColor(26, 166, 191));
    EXPECT_EQ(profileColor(u"foobar"_s), QColor(51, 120, 245));
}

TEST(ProfileColor, TheEmptyIdHasTheSixthColour)
{
    EXPECT_EQ(profileColor({}), QColor(26, 166, 191));
    EXPECT_EQ(profileColor(u""_s), QColor(26, 166, 191));
}

TEST(ProfileColor, TheBytesAreThoseOfUtf8)
{
    // U+00E9 is 0xC3 0xA9.
    quint64 hash = (0xcbf29ce484222325U ^ 0xc3U) * 0x100000001b3U;
    hash = (hash ^ 0xa9U) * 0x100000001b3U;
    EXPECT_EQ(fnv1a(u"\u00e9"_s.toUtf8()), hash);
    // Latin-1's single byte would give another index.
    ASSERT_NE(hash % 8, fnv1a("\xe9") % 8);
    QString sameIndex;
    for (int number = 0; sameIndex.isEmpty(); ++number) {
        const QString candidate = QString::number(number);
        if (fnv1a(candidate.toUtf8()) % 8 == hash % 8)
            sameIndex = candidate;
    }
    EXPECT_EQ(profileColor(u"\u00e9"_s), profileColor(sameIndex));
}

} // namespace
} // namespace vantrel
