#include "VantrelKit/Paths.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Join {
    QString folder;
    QString relative;
    QString expected;
};

TEST(Paths, OneSlashStandsBetweenTheJoinedAndNoneAtTheEnd)
{
    const std::vector<Join> rows{
        {u"/a"_s, u"b"_s, u"/a/b"_s},
        {u"/a/"_s, u"b"_s, u"/a/b"_s},
        {u"/a//"_s, u"b"_s, u"/a/b"_s},
        {u"/a"_s, u"/b"_s, u"/a/b"_s},
        {u"/a"_s, u"//b"_s, u"/a/b"_s},
        {u"/a/"_s, u"/b/"_s, u"/a/b"_s},
        {u"/a"_s, u"b/"_s, u"/a/b"_s},
        {u"/a"_s, u"b//"_s, u"/a/b"_s},
        {u"/a"_s, u"b/c"_s, u"/a/b/c"_s},
        {u"/"_s, u"b"_s, u"/b"_s},
        {u"/"_s, u"/b"_s, u"/b"_s},
        {u"//"_s, u"b"_s, u"/b"_s},
        {u"/a"_s, u""_s, u"/a"_s},
        {u"/a/"_s, u""_s, u"/a"_s},
        {u"/a"_s, u"/"_s, u"/a"_s},
        {u"/"_s, u""_s, u"/"_s},
        {u"/"_s, u"/"_s, u"/"_s},
        {u"a"_s, u"b"_s, u"a/b"_s},
        {u"/a b"_s, u"c d"_s, u"/a b/c d"_s},
        {u"/a"_s, u"."_s, u"/a/."_s},
        {u"/a"_s, u"../b"_s, u"/a/../b"_s},
        {u"/a"_s, u"b//c"_s, u"/a/b//c"_s},
    };
    for (const Join &row : rows)
        EXPECT_EQ(joinedPath(row.folder, row.relative), row.expected);
}

TEST(Paths, AnyTextWithoutASlashIsJoinedAsItIs)
{
    for (const QString &text : test::oddTexts() + test::loneSurrogates()) {
        if (text.contains(u'/'))
            continue;
        EXPECT_EQ(joinedPath(u"/a"_s, text), QString(u"/a/"_s + text));
        EXPECT_EQ(joinedPath(u"/"_s + text, u"b"_s), QString(u"/"_s + text + u"/b"_s));
        EXPECT_EQ(lastPathComponent(u"/a/"_s + text), text);
    }
}

TEST(Paths, TheLastComponentFollowsTheLastSlashThatIsNotAtTheEnd)
{
    const std::vector<std::pair<QString, QString>> rows{
        {u"Profiles/q1.Personal"_s, u"q1.Personal"_s},
        {u"Profiles/q1.Personal/"_s, u"q1.Personal"_s},
        {u"Profiles/q1.Personal//"_s, u"q1.Personal"_s},
        {u"/a"_s, u"a"_s},
        {u"a"_s, u"a"_s},
        {u"a/"_s, u"a"_s},
        {u"/a//b"_s, u"b"_s},
        {u"/a/.."_s, u".."_s},
        {u"a b/c d"_s, u"c d"_s},
        {u""_s, u""_s},
    };
    for (const auto &[path, component] : rows)
        EXPECT_EQ(lastPathComponent(path), component);
}

} // namespace
} // namespace vantrel
