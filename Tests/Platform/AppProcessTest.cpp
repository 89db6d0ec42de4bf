#include "Platform/AppProcess.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(AppArguments, SayWhatTheAppIsAskedForAtItsStart)
{
    using Kind = InstanceRequest::Kind;
    EXPECT_EQ(appArguments({}), QStringList());
    EXPECT_EQ(appArguments({.kind = Kind::open, .links = {u"vantrel://a"_s, u"vantrel://b c"_s}}),
              QStringList({u"vantrel://a"_s, u"vantrel://b c"_s}));
    EXPECT_EQ(appArguments({.kind = Kind::action, .action = u"menu"_s}), QStringList({u"--action"_s, u"menu"_s}));
}

} // namespace
} // namespace vantrel
