#include "VantrelKit/Safari/StringsFileError.h"

#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(StringsFileError, TheMessageSaysWhereAndWhy)
{
    EXPECT_EQ((StringsFileError{.reason = u"50%1 is %2"_s, .place = StringsFileError::Place{3, 7}}.message()),
              u"line 3, column 7: 50%1 is %2"_s);
    EXPECT_EQ(StringsFileError{u"It is too large"_s}.message(), u"It is too large"_s);
}

} // namespace
} // namespace vantrel
