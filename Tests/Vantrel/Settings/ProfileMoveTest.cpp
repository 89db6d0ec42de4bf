#include "Vantrel/Settings/ProfileMove.h"

#include "Tests/Fakes/FakeLog.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class ProfileMoveTest : public testing::Test {
protected:
    using Direction = ProfileMove::Direction;

    ProfileMoveTest()
    {
        store_.setBrowsers({{test::chrome, u"Chrome"_s, QUrl(), BrowserFamily::chromium},
                            {test::brave, u"Brave"_s, QUrl(), BrowserFamily::chromium}});
        const QList<DiscoveredProfile> profiles{{u"1"_s, u"1"_s}, {u"2"_s, u"2"_s}};
        store_.apply({{test::chrome, profiles}, {test::brave, profiles}});
    }

    [[nodiscard]] QString list() const { return test::notation(store_.profilesOf(test::chrome)); }
    [[nodiscard]] static QString id(const QString &notation) { return test::profiles(notation).first().id(); }

    /// False when the profile can't be moved there.
    bool move(const QString &notation, Direction direction)
    {
        const auto found = ProfileMove::byOne(store_, id(notation), direction);
        if (found)
            found->apply(store_);
        return found.has_value();
    }

    test::FakeLog log_;
    ProfileStore store_{QString(), log_, ProfileStore::Liveness::detached};
};

TEST_F(ProfileMoveTest, TheFirstCantGoUpAndGoesDownByOne)
{
    ASSERT_EQ(list(), u"c:1 c:2 c:private"_s);
    EXPECT_FALSE(move(u"c:1"_s, Direction::up));
    EXPECT_TRUE(move(u"c:1"_s, Direction::down));
    EXPECT_EQ(list(), u"c:2 c:1 c:private"_s);
}

TEST_F(ProfileMoveTest, TheLastCantGoDownAndGoesUpByOne)
{
    EXPECT_FALSE(move(u"c:private"_s, Direction::down));
    EXPECT_TRUE(move(u"c:private"_s, Direction::up));
    EXPECT_EQ(list(), u"c:1 c:private c:2"_s);
    EXPECT_EQ(test::notation(store_.profilesOf(test::brave)), u"b:1 b:2 b:private"_s);
}

TEST_F(ProfileMoveTest, ProfilesThatAreGoneStayWhereTheyAre)
{
    EXPECT_FALSE(move(u"c:3"_s, Direction::up));
    store_.setBrowsers({});
    EXPECT_FALSE(move(u"c:2"_s, Direction::up));
}

TEST(DropDestination, IsTheNearestGapAmongTheRows)
{
    constexpr int top = 100;
    constexpr int row = 30;
    EXPECT_EQ(dropDestination(-500, top, row, 3), 0);
    EXPECT_EQ(dropDestination(100, top, row, 3), 0);
    EXPECT_EQ(dropDestination(114, top, row, 3), 0);
    EXPECT_EQ(dropDestination(115, top, row, 3), 1);
    EXPECT_EQ(dropDestination(144, top, row, 3), 1);
    EXPECT_EQ(dropDestination(145, top, row, 3), 2);
    EXPECT_EQ(dropDestination(190, top, row, 3), 3);
    EXPECT_EQ(dropDestination(9000, top, row, 3), 3);
    EXPECT_EQ(dropDestination(9000, top, row, 0), 0);
}

} // namespace
} // namespace vantrel
