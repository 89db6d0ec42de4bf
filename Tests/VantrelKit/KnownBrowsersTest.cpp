#include "VantrelKit/KnownBrowsers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(KnownBrowsers, EveryIdentifierHasAFamily)
{
    EXPECT_EQ(KnownBrowsers::all().size(), 38);
    for (const QString &identifier : KnownBrowsers::all())
        EXPECT_TRUE(KnownBrowsers::family(identifier)) << identifier.toStdString();
}

} // namespace
} // namespace vantrel
