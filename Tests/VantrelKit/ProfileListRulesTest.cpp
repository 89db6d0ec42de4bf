#include "Tests/VantrelKit/Samples.h"
#include "VantrelKit/ProfileList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::notation;

/// The rules once more, as slow and as plain as can be.
namespace naive {

QList<Profile> group(const QString &browser, const QList<Profile> &list)
{
    QList<Profile> result;
    for (const Profile &profile : list) {
        if (profile.browserBundleID == browser)
            result.append(profile);
    }
    return result;
}

bool holds(const QList<Profile> &list, const QString &id)
{
    return test::ids(list).contains(id);
}

QList<Profile> splice(const QString &browser, const QList<Profile> &newGroup, const QList<Profile> &current)
{
    QList<Profile> result;
    qsizetype position = -1;
    for (qsizetype row = 0; row < current.size(); ++row) {
        if (current[row].browserBundleID != browser)
            result.append(current[row]);
        else if (position < 0)
            position = row;
    }
    qsizetype place = position < 0 ? result.size() : std::min(position, result.size());
    for (const Profile &profile : newGroup)
        result.insert(place++, profile);
    return result;
}

QList<Profile> merge(const QList<Profile> &fresh, const QString &browser, const QList<Profile> &current)
{
    const QList<Profile> old = group(browser, current);
    QList<Profile> result;
    for (const Profile &profile : old) {
        const qsizetype row = test::ids(fresh).indexOf(profile.id());
        if (row >= 0)
            result.append(fresh[row]);
    }
    qsizetype place = 0;
    while (place < result.size() && !result[place].target.isPrivate())
        ++place;
    for (const Profile &profile : fresh) {
        if (!holds(old, profile.id()) && !profile.target.isPrivate())
            result.insert(place++, profile);
    }
    for (const Profile &profile : fresh) {
        if (!holds(old, profile.id()) && profile.target.isPrivate())
            result.append(profile);
    }
    return splice(browser, result, current);
}

QList<Profile> move(const QList<Profile> &current, const QString &browser, const QSet<qsizetype> &positions,
                    qsizetype destination)
{
    QList<Profile> moving;
    QList<Profile> staying;
    const QList<Profile> rows = group(browser, current);
    for (qsizetype row = 0; row < rows.size(); ++row)
        (positions.contains(row) ? moving : staying).append(rows[row]);
    qsizetype place = destination - std::ranges::count_if(positions, [&](qsizetype row) { return row < destination; });
    for (const Profile &profile : moving)
        staying.insert(place++, profile);
    return splice(browser, staying, current);
}

} // namespace naive

/// Small random lists, the same ones at every run.
class Chance {
public:
    explicit Chance(unsigned seed) : engine_(seed) {}

    qsizetype below(qsizetype bound) { return std::uniform_int_distribution<qsizetype>(0, bound - 1)(engine_); }

    QString browser() { return browsers()[below(browsers().size())]; }

    /// Profiles of one browser, each at most once, in any order and under any name.
    QList<Profile> group(const QString &browser)
    {
        QList<Profile> all{Profile::privateWindow(browser)};
        for (const auto folder : {"1"_L1, "2"_L1, "3"_L1, "4"_L1, "5"_L1})
            all.append({browser, names()[below(names().size())], ProfileTarget::chromium(folder)});
        std::ranges::shuffle(all, engine_);
        return all.first(below(all.size() + 1));
    }

    /// The groups of all browsers in any order; sometimes thoroughly mixed, as after an edit by hand.
    QList<Profile> list()
    {
        QStringList order = browsers();
        std::ranges::shuffle(order, engine_);
        QList<Profile> result;
        for (const QString &browser : std::as_const(order))
            result.append(group(browser));
        if (below(4) == 0)
            std::ranges::shuffle(result, engine_);
        return result;
    }

    QSet<qsizetype> positions(qsizetype size)
    {
        QSet<qsizetype> result;
        for (qsizetype row = 0; row < size; ++row) {
            if (below(2) == 0)
                result.insert(row);
        }
        return result;
    }

    static const QStringList &browsers()
    {
        static const QStringList identifiers{test::chrome, test::brave, test::edge};
        return identifiers;
    }

private:
    static const QStringList &names()
    {
        static const QStringList texts{u""_s, u"1"_s, u"Work"_s, u"Home"_s};
        return texts;
    }

    std::mt19937 engine_;
};

/// True when the browser's profiles follow each other.
bool isOneGroup(const QString &browser, const QList<Profile> &list)
{
    int runs = 0;
    for (qsizetype row = 0; row < list.size(); ++row) {
        const bool here = list[row].browserBundleID == browser;
        const bool before = row > 0 && list[row - 1].browserBundleID == browser;
        runs += here && !before;
    }
    return runs <= 1;
}

/// Every group that was whole is whole now, the browser's own in any case, and the other profiles keep their order.
void expectOrderlyChange(const QString &browser, const QList<Profile> &before, const QList<Profile> &after)
{
    for (const QString &one : Chance::browsers()) {
        if (one == browser || isOneGroup(one, before)) {
            EXPECT_TRUE(isOneGroup(one, after))
                << notation(before).toStdString() << " -> " << notation(after).toStdString();
        }
    }
    EXPECT_EQ(naive::splice(browser, {}, after), naive::splice(browser, {}, before));
}

constexpr int rounds = 5000;

TEST(ProfileListRules, MergingFollowsTheRulesOnRandomLists)
{
    Chance chance(20240601);
    for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round) {
        const QString browser = chance.browser();
        const QList<Profile> current = chance.list();
        const QList<Profile> fresh = chance.group(browser);
        const QList<Profile> result = ProfileList::merge(fresh, browser, current);
        EXPECT_EQ(result, naive::merge(fresh, browser, current)) << notation(current).toStdString();
        EXPECT_EQ(ProfileList::merge(fresh, browser, result), result);
        expectOrderlyChange(browser, current, result);
    }
}

TEST(ProfileListRules, MovingFollowsTheRulesOnRandomLists)
{
    Chance chance(20240602);
    for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round) {
        const QString browser = chance.browser();
        const QList<Profile> current = chance.list();
        const qsizetype size = naive::group(browser, current).size();
        const QSet<qsizetype> positions = chance.positions(size);
        const qsizetype destination = chance.below(size + 1);
        const QList<Profile> result = ProfileList::move(current, browser, positions, destination);
        EXPECT_EQ(result, naive::move(current, browser, positions, destination)) << notation(current).toStdString();
        EXPECT_EQ(result.size(), current.size());
        expectOrderlyChange(browser, current, result);
    }
}

TEST(ProfileListRules, SplicingFollowsTheRulesOnRandomLists)
{
    Chance chance(20240603);
    for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round) {
        const QString browser = chance.browser();
        const QList<Profile> current = chance.list();
        const QList<Profile> group = chance.group(browser);
        const QList<Profile> result = ProfileList::splice(browser, group, current);
        EXPECT_EQ(result, naive::splice(browser, group, current)) << notation(current).toStdString();
        EXPECT_EQ(naive::group(browser, result), group);
        expectOrderlyChange(browser, current, result);
    }
}

TEST(ProfileListRules, DiscoveriesAndMovesInAnyOrderKeepTheGroups)
{
    Chance chance(20240604);
    QList<Profile> list;
    for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round) {
        const QString browser = chance.browser();
        const qsizetype size = naive::group(browser, list).size();
        if (chance.below(2) == 0)
            list = ProfileList::merge(chance.group(browser), browser, list);
        else
            list = ProfileList::move(list, browser, chance.positions(size), chance.below(size + 1));
        for (const QString &one : Chance::browsers())
            EXPECT_TRUE(isOneGroup(one, list)) << notation(list).toStdString();
    }
}

} // namespace
} // namespace vantrel
