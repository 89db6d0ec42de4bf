#include "VantrelKit/DecodingError.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Kind = DecodingError::Kind;

DecodingError made(Kind kind, const QString &path, const QString &reason)
{
    return {kind, path, reason};
}

TEST(DecodingError, TheMessageIsPlaceAndReason)
{
    EXPECT_EQ(made(Kind::typeMismatch, u"profiles[3].target"_s, u"Bad."_s).message(), u"profiles[3].target: Bad."_s);
    EXPECT_EQ(made(Kind::typeMismatch, {}, u"Bad."_s).message(), u"Bad."_s);
}

TEST(DecodingError, SeenFromAboveThePlaceGrowsAtItsFront)
{
    const DecodingError error{Kind::keyNotFound, {}, u"Missing."_s};
    EXPECT_EQ(error.below(u"target"_s).path, u"target"_s);
    EXPECT_EQ(error.below(u"target"_s).below(u"[3]"_s).path, u"[3].target"_s);
    EXPECT_EQ(error.below(u"target"_s).below(u"[3]"_s).below(u"profiles"_s).path, u"profiles[3].target"_s);
    EXPECT_EQ(error.below(u"b"_s).below(u"a"_s).path, u"a.b"_s);
}

TEST(DecodingError, SeenFromAboveKindAndReasonStay)
{
    for (const Kind kind : {Kind::keyNotFound, Kind::typeMismatch, Kind::valueNotFound, Kind::dataCorrupted}) {
        const DecodingError below = made(kind, u"b"_s, u"Reason."_s).below(u"a"_s);
        EXPECT_EQ(below, made(kind, u"a.b"_s, u"Reason."_s));
    }
}

TEST(DecodingError, KindPlaceAndReasonCountForEquality)
{
    const DecodingError error{Kind::keyNotFound, u"a"_s, u"b"_s};
    EXPECT_NE(error, made(Kind::typeMismatch, u"a"_s, u"b"_s));
    EXPECT_NE(error, made(Kind::keyNotFound, u"x"_s, u"b"_s));
    EXPECT_NE(error, made(Kind::keyNotFound, u"a"_s, u"x"_s));
}

} // namespace
} // namespace vantrel
