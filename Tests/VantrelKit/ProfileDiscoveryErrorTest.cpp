#include "VantrelKit/ProfileDiscoveryError.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(ProfileDiscoveryError, ADeniedAccessHasItsPathAndNoReason)
{
    const auto error = ProfileDiscoveryError::accessDenied(u"/a"_s);
    EXPECT_EQ(error.kind, ProfileDiscoveryError::Kind::accessDenied);
    EXPECT_EQ(error.path, u"/a"_s);
    EXPECT_EQ(error.reason, QString());
}

TEST(ProfileDiscoveryError, AFailedReadHasItsPathAndReason)
{
    const auto error = ProfileDiscoveryError::readFailed(u"/a"_s, u"Worn out"_s);
    EXPECT_EQ(error.kind, ProfileDiscoveryError::Kind::readFailed);
    EXPECT_EQ(error.path, u"/a"_s);
    EXPECT_EQ(error.reason, u"Worn out"_s);
}

TEST(ProfileDiscoveryError, KindPathAndReasonCountForEquality)
{
    const auto error = ProfileDiscoveryError::readFailed(u"/a"_s, u"b"_s);
    EXPECT_EQ(error, ProfileDiscoveryError::readFailed(u"/a"_s, u"b"_s));
    EXPECT_NE(error, ProfileDiscoveryError::readFailed(u"/x"_s, u"b"_s));
    EXPECT_NE(error, ProfileDiscoveryError::readFailed(u"/a"_s, u"x"_s));
    EXPECT_NE(ProfileDiscoveryError::readFailed(u"/a"_s, {}), ProfileDiscoveryError::accessDenied(u"/a"_s));
}

} // namespace
} // namespace vantrel
