#include "VantrelKit/ProfileList.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::notation;
using test::profiles;

QString merged(const QString &current, const QString &fresh, const QString &browser = test::chrome)
{
    return notation(ProfileList::merge(profiles(fresh), browser, profiles(current)));
}

QString moved(const QString &current, const QSet<qsizetype> &positions, qsizetype destination,
              const QString &browser = test::chrome)
{
    return notation(ProfileList::move(profiles(current), browser, positions, destination));
}

QString spliced(const QString &current, const QString &group, const QString &browser = test::chrome)
{
    return notation(ProfileList::splice(browser, profiles(group), profiles(current)));
}

TEST(ProfileList, AFirstDiscoveryComesInItsOrder)
{
    EXPECT_EQ(merged({}, u"c:Default c:1 c:private"_s), u"c:Default c:1 c:private"_s);
}

TEST(ProfileList, TheFirstGroupOfABrowserComesAtTheEnd)
{
    EXPECT_EQ(merged(u"s:Home f:x f:private"_s, u"c:Default c:private"_s),
              u"s:Home f:x f:private c:Default c:private"_s);
}

TEST(ProfileList, TheUsersOrderSurvivesADiscovery)
{
    EXPECT_EQ(merged(u"c:3 c:private c:1 c:Default"_s, u"c:Default c:1 c:3 c:private"_s),
              u"c:3 c:private c:1 c:Default"_s);
}

TEST(ProfileList, NewProfilesComeBeforeThePrivateWindow)
{
    EXPECT_EQ(merged(u"c:1 c:private c:Default"_s, u"c:Default c:1 c:2 c:private"_s), u"c:1 c:2 c:private c:Default"_s);
    EXPECT_EQ(merged(u"c:Default c:private"_s, u"c:9 c:Default c:8 c:private"_s), u"c:Default c:9 c:8 c:private"_s);
}

TEST(ProfileList, NewProfilesComeFirstWhereThePrivateWindowIs)
{
    EXPECT_EQ(merged(u"c:private c:1"_s, u"c:1 c:2 c:private"_s), u"c:2 c:private c:1"_s);
}

TEST(ProfileList, NewProfilesComeLastWithoutAPrivateWindow)
{
    EXPECT_EQ(merged(u"c:2 c:1"_s, u"c:3 c:1 c:2 c:4"_s), u"c:2 c:1 c:3 c:4"_s);
}

TEST(ProfileList, NewProfilesComeLastWhenThePrivateWindowIsGone)
{
    EXPECT_EQ(merged(u"c:private c:1"_s, u"c:1 c:2"_s), u"c:1 c:2"_s);
}

TEST(ProfileList, ANewPrivateWindowComesLast)
{
    EXPECT_EQ(merged(u"c:1"_s, u"c:private c:1 c:2"_s), u"c:1 c:2 c:private"_s);
    EXPECT_EQ(merged({}, u"c:private c:1"_s), u"c:1 c:private"_s);
}

TEST(ProfileList, TheFirstOfSeveralPrivateWindowsIsTheMark)
{
    QList<Profile> current = profiles(u"c:1 c:private c:2"_s);
    current.append({test::chrome, {}, ProfileTarget::firefoxPrivate()});
    QList<Profile> fresh = profiles(u"c:1 c:2 c:3 c:private"_s);
    EXPECT_EQ(notation(ProfileList::merge(fresh, test::chrome, current)), u"c:1 c:3 c:private c:2 c:private"_s);
}

TEST(ProfileList, ARenamedProfileKeepsItsPlaceAndTakesTheNewName)
{
    EXPECT_EQ(merged(u"c:2=Old c:1=Work c:private"_s, u"c:1=Home c:2=New c:private"_s),
              u"c:2=New c:1=Home c:private"_s);
}

TEST(ProfileList, TheFreshRecordIsTakenWhole)
{
    QList<Profile> current = profiles(u"c:1=Old c:private=Old"_s);
    current[0].avatarPNG = QByteArray("old picture");
    QList<Profile> fresh = profiles(u"c:private c:1=New"_s);
    EXPECT_EQ(ProfileList::merge(fresh, test::chrome, current), profiles(u"c:1=New c:private"_s));
    fresh[1].avatarPNG = QByteArray("new picture");
    EXPECT_EQ(ProfileList::merge(fresh, test::chrome, current).first().avatarPNG, QByteArray("new picture"));
}

TEST(ProfileList, ASafariProfileThatMovedInTheMenuTakesItsNewIndex)
{
    const Profile old{test::safari, u"Work"_s, ProfileTarget::safariProfile(u"Work"_s, 1)};
    const Profile fresh{test::safari, u"Work"_s, ProfileTarget::safariProfile(u"Work"_s, 4)};
    EXPECT_EQ(ProfileList::merge({fresh}, test::safari, {old}), QList<Profile>({fresh}));
}

TEST(ProfileList, ADeletedProfileDisappearsAndComesBackAsNew)
{
    const QString without = merged(u"c:1 c:2 c:private"_s, u"c:2 c:private"_s);
    EXPECT_EQ(without, u"c:2 c:private"_s);
    EXPECT_EQ(merged(without, u"c:1 c:2 c:private"_s), u"c:2 c:1 c:private"_s);
}

TEST(ProfileList, ADiscoveryWithoutProfilesEmptiesTheGroupOnly)
{
    EXPECT_EQ(merged(u"s:Home c:1 c:private f:x"_s, {}), u"s:Home f:x"_s);
    EXPECT_EQ(merged({}, {}), QString());
}

TEST(ProfileList, AGroupStaysAmongTheOthersWhereItWas)
{
    EXPECT_EQ(merged(u"s:Home c:1 c:private f:x"_s, u"c:1 c:2 c:3 c:private"_s), u"s:Home c:1 c:2 c:3 c:private f:x"_s);
    EXPECT_EQ(merged(u"c:1 f:x"_s, u"c:1 c:2"_s), u"c:1 c:2 f:x"_s);
    EXPECT_EQ(merged(u"f:x c:1 c:2"_s, u"c:2"_s), u"f:x c:2"_s);
}

TEST(ProfileList, SafarisProfilesMoveNoOtherGroup)
{
    EXPECT_EQ(merged(u"c:1 s:Home f:x f:private"_s, u"s:Work s:Home s:private"_s, test::safari),
              u"c:1 s:Home s:Work s:private f:x f:private"_s);
}

TEST(ProfileList, TheSameFolderInAnotherBrowserIsAnotherProfile)
{
    EXPECT_EQ(merged(u"b:Default=Brave c:Default=Chrome"_s, u"c:Default=New"_s), u"b:Default=Brave c:Default=New"_s);
}

TEST(ProfileList, OfFreshRecordsWithOneIdTheFirstReplacesTheOldOne)
{
    EXPECT_EQ(merged(u"c:1=Old"_s, u"c:1=First c:1=Second"_s), u"c:1=First"_s);
}

TEST(ProfileList, FreshRecordsWithOneIdThatIsNewAllCome)
{
    EXPECT_EQ(merged(u"c:2"_s, u"c:1=First c:2 c:1=Second"_s), u"c:2 c:1=First c:1=Second"_s);
}

TEST(ProfileList, OldRecordsWithOneIdAllTakeTheFreshRecord)
{
    EXPECT_EQ(merged(u"c:1=A c:2 c:1=B"_s, u"c:1=New c:2"_s), u"c:1=New c:2 c:1=New"_s);
}

TEST(ProfileList, MovingIsLikeMovingTheRowsOfAList)
{
    const QString group = u"c:A c:B c:C c:D"_s;
    EXPECT_EQ(moved(group, {0}, 3), u"c:B c:C c:A c:D"_s);
    EXPECT_EQ(moved(group, {3}, 0), u"c:D c:A c:B c:C"_s);
    EXPECT_EQ(moved(group, {0, 2}, 4), u"c:B c:D c:A c:C"_s);
    EXPECT_EQ(moved(group, {0, 3}, 2), u"c:B c:A c:D c:C"_s);
    EXPECT_EQ(moved(group, {1, 2}, 0), u"c:B c:C c:A c:D"_s);
    EXPECT_EQ(moved(group, {1, 3}, 2), u"c:A c:B c:D c:C"_s);
}

TEST(ProfileList, MovingARowToItselfOrBehindItselfChangesNothing)
{
    const QString group = u"c:A c:B c:C"_s;
    for (qsizetype row = 0; row < 3; ++row) {
        EXPECT_EQ(moved(group, {row}, row), group);
        EXPECT_EQ(moved(group, {row}, row + 1), group);
    }
    EXPECT_EQ(moved(group, {0, 1, 2}, 1), group);
    EXPECT_EQ(moved(group, {}, 2), group);
}

TEST(ProfileList, MovingCountsTheRowsOfTheGroupAndLeavesTheOthers)
{
    EXPECT_EQ(moved(u"s:Home c:A c:B c:private f:x"_s, {2}, 0), u"s:Home c:private c:A c:B f:x"_s);
    EXPECT_EQ(moved(u"s:Home c:A c:B f:x"_s, {0}, 2), u"s:Home c:B c:A f:x"_s);
}

TEST(ProfileList, MovingInABrowserWithoutProfilesChangesNothing)
{
    EXPECT_EQ(moved(u"s:Home f:x"_s, {0}, 0), u"s:Home f:x"_s);
    EXPECT_EQ(moved({}, {0}, 1), QString());
}

TEST(ProfileList, PositionsOutsideTheGroupAreIgnored)
{
    EXPECT_EQ(moved(u"c:A c:B c:C"_s, {-1, 1, 3, 99}, 0), u"c:B c:A c:C"_s);
    EXPECT_EQ(moved(u"c:A c:B c:C"_s, {-1, 0}, 2), u"c:B c:A c:C"_s);
    EXPECT_EQ(moved(u"c:A c:B c:C"_s, {-5, 7}, 1), u"c:A c:B c:C"_s);
}

TEST(ProfileList, ADestinationOutsideTheGroupIsItsNearestEnd)
{
    EXPECT_EQ(moved(u"c:A c:B c:C"_s, {0}, 99), u"c:B c:C c:A"_s);
    EXPECT_EQ(moved(u"c:A c:B c:C"_s, {2}, -7), u"c:C c:A c:B"_s);
}

TEST(ProfileList, AGroupIsReplacedWhereItBegan)
{
    EXPECT_EQ(spliced(u"s:Home c:1 c:2 f:x"_s, u"c:3"_s), u"s:Home c:3 f:x"_s);
    EXPECT_EQ(spliced(u"c:1 f:x"_s, u"c:3 c:4 c:5"_s), u"c:3 c:4 c:5 f:x"_s);
    EXPECT_EQ(spliced(u"f:x c:1"_s, u"c:3"_s), u"f:x c:3"_s);
    EXPECT_EQ(spliced(u"f:x c:1 s:Home"_s, {}), u"f:x s:Home"_s);
}

TEST(ProfileList, AGroupWithoutAPlaceComesAtTheEnd)
{
    EXPECT_EQ(spliced(u"s:Home f:x"_s, u"c:1 c:2"_s), u"s:Home f:x c:1 c:2"_s);
    EXPECT_EQ(spliced({}, u"c:1"_s), u"c:1"_s);
}

TEST(ProfileList, AScatteredGroupBecomesOneAtTheFirstChange)
{
    EXPECT_EQ(spliced(u"c:1 f:x c:2 s:Home c:3"_s, u"c:1 c:2 c:3"_s), u"c:1 c:2 c:3 f:x s:Home"_s);
    EXPECT_EQ(merged(u"f:x c:1 f:y c:private"_s, u"c:1 c:2 c:private"_s), u"f:x c:1 c:2 c:private f:y"_s);
    EXPECT_EQ(moved(u"f:x c:1 f:y c:2"_s, {1}, 0), u"f:x c:2 c:1 f:y"_s);
}

TEST(ProfileList, TheGivenListsStayAsTheyAre)
{
    const QList<Profile> current = profiles(u"c:1 c:private f:x"_s);
    const QList<Profile> fresh = profiles(u"c:2=New c:1=Renamed"_s);
    (void)ProfileList::merge(fresh, test::chrome, current);
    (void)ProfileList::move(current, test::chrome, {0}, 2);
    (void)ProfileList::splice(test::chrome, fresh, current);
    EXPECT_EQ(notation(current), u"c:1 c:private f:x"_s);
    EXPECT_EQ(notation(fresh), u"c:2=New c:1=Renamed"_s);
}

/// Chrome's profiles by number, a number of them.
QList<Profile> numbered(const std::vector<int> &numbers, const QString &namePrefix)
{
    QList<Profile> result;
    for (const int number : numbers) {
        result.append(
            {test::chrome, namePrefix + QString::number(number), ProfileTarget::chromium(u"Profile %1"_s.arg(number))});
    }
    return result;
}

TEST(ProfileList, TwentyThousandProfilesAreMergedRightly)
{
    constexpr int count = 20000;
    std::vector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    std::vector<int> backwards(order.rbegin(), order.rend());
    std::vector<int> kept;
    std::vector<int> freshOrder;
    for (const int number : order) {
        if (number % 3 != 0)
            freshOrder.push_back(number);
    }
    for (const int number : backwards) {
        if (number % 3 != 0)
            kept.push_back(number);
    }
    for (int number = count; number < count + 1000; ++number)
        freshOrder.push_back(number);
    std::vector<int> added(1000);
    std::iota(added.begin(), added.end(), count);

    const QList<Profile> privateWindow{Profile::privateWindow(test::chrome)};
    const QList<Profile> neighbour = profiles(u"f:x"_s);
    const QList<Profile> current = numbered(backwards, u"old "_s) + privateWindow + neighbour;
    const QList<Profile> fresh = privateWindow + numbered(freshOrder, u"new "_s);
    const QList<Profile> expected = numbered(kept, u"new "_s) + numbered(added, u"new "_s) + privateWindow + neighbour;
    EXPECT_TRUE(ProfileList::merge(fresh, test::chrome, current) == expected);
}

} // namespace
} // namespace vantrel
