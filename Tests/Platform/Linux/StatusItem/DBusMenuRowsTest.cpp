#include "Platform/Linux/StatusItem/DBusMenuRows.h"

#include "Tests/Platform/Linux/StatusItem/MenuSamples.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::plainRow;

class DBusMenuRowsTest : public testing::Test {
protected:
    /// A row whose action tells what it was made as.
    [[nodiscard]] MenuItem command(const QString &id, const QString &title, const QString &mark = {})
    {
        return test::command(id, title, [this, title, mark] { chosen_ = mark.isEmpty() ? title : mark; });
    }

    DBusMenuRows::Changes replace(const Menu &menu)
    {
        DBusMenuRows::Changes changes = rows_.replace(menu);
        numbers_.clear();
        for (const DBusMenuRows::Row &row : rows_.rows())
            numbers_.append(row.number);
        return changes;
    }

    /// What choosing the number does; empty when there is no such row.
    [[nodiscard]] QString choose(int number)
    {
        chosen_.clear();
        if (const DBusMenuRows::Row *row = rows_.find(number))
            row->action();
        return chosen_;
    }

    QList<int> numbers_;

private:
    DBusMenuRows rows_;
    QString chosen_;
};

TEST_F(DBusMenuRowsTest, NumbersArePositiveAndEachIsOneRows)
{
    replace({plainRow(MenuItem::Kind::header, u"A"_s), command(u"1"_s, u"Work"_s), plainRow(MenuItem::Kind::separator),
             plainRow(MenuItem::Kind::header, u"A"_s), command(u"2"_s, u"Home"_s), plainRow(MenuItem::Kind::separator),
             plainRow(MenuItem::Kind::text, u"A"_s)});
    EXPECT_EQ(QSet<int>(numbers_.begin(), numbers_.end()).size(), 7);
    EXPECT_GT(*std::ranges::min_element(numbers_), 0);
    EXPECT_EQ(choose(numbers_[1]), u"Work"_s);
    EXPECT_EQ(choose(numbers_[4]), u"Home"_s);
    EXPECT_EQ(choose(0), QString());
    EXPECT_EQ(choose(-1), QString());
    EXPECT_EQ(choose(8), QString());
}

TEST_F(DBusMenuRowsTest, ACommandKeepsItsNumberWhereverItGoesAndAlsoWhenItReturns)
{
    replace({command(u"1"_s, u"Work"_s), command(u"2"_s, u"Home"_s)});
    const int work = numbers_[0];
    const int home = numbers_[1];
    replace({plainRow(MenuItem::Kind::header, u"A"_s), command(u"2"_s, u"Home"_s), command(u"1"_s, u"Renamed"_s)});
    EXPECT_EQ(numbers_.sliced(1), (QList<int>{home, work}));
    replace({command(u"2"_s, u"Home"_s)});
    EXPECT_EQ(choose(work), QString());
    replace({command(u"3"_s, u"New"_s), command(u"1"_s, u"Work"_s)});
    EXPECT_EQ(numbers_[1], work);
    EXPECT_NE(numbers_[0], home);
    EXPECT_EQ(choose(home), QString());
}

TEST_F(DBusMenuRowsTest, RowsWithTheSameIDBothWork)
{
    const Menu menu{command(u"1"_s, u"Work"_s), command(u"1"_s, u"Home"_s), command(u"1"_s, u"Home"_s, u"second"_s)};
    replace(menu);
    const QList<int> numbers = numbers_;
    EXPECT_EQ(choose(numbers[0]), u"Work"_s);
    EXPECT_EQ(choose(numbers[1]), u"Home"_s);
    EXPECT_EQ(choose(numbers[2]), u"second"_s);
    EXPECT_FALSE(replace(menu).hasAny);
    EXPECT_EQ(numbers_, numbers);
}

TEST_F(DBusMenuRowsTest, ANumberOfRowsWithTheSameIDNeverBecomesThatOfAnother)
{
    replace({command(u"1"_s, u"Work"_s), command(u"1"_s, u"Home"_s)});
    const int work = numbers_[0];
    replace({command(u"1"_s, u"Home"_s)});
    EXPECT_EQ(choose(work), QString());
    const int alone = numbers_[0];
    replace({command(u"1"_s, u"Home"_s), command(u"1"_s, u"Work"_s)});
    EXPECT_EQ(choose(work), u"Work"_s);
    replace({command(u"1"_s, u"Work"_s), command(u"1"_s, u"Home"_s)});
    EXPECT_EQ(choose(alone), QString());
    EXPECT_EQ(choose(work), u"Work"_s);
    // Not even when their titles don't tell them apart, or are empty.
    for (const QString &title : {u"Same"_s, QString()}) {
        replace({command(u"1"_s, title, u"a"_s), command(u"1"_s, title, u"b"_s), command(u"1"_s, title, u"c"_s)});
        const QList<int> three = numbers_;
        replace({command(u"1"_s, title, u"b"_s), command(u"1"_s, title, u"c"_s)});
        const QList<int> two = numbers_;
        for (const int number : three)
            EXPECT_EQ(choose(number), QString());
        replace({command(u"1"_s, title, u"c"_s)});
        for (const int number : three + two)
            EXPECT_EQ(choose(number), QString());
    }
}

TEST_F(DBusMenuRowsTest, AnIDOfARowThatTurnsIntoTwoIsNeitherOfThem)
{
    replace({command(u"1"_s, QString(), u"Empty"_s)});
    const int former = numbers_[0];
    replace({command(u"1"_s, QString(), u"Other"_s), command(u"1"_s, u"Home"_s)});
    EXPECT_EQ(choose(former), QString());
}

TEST_F(DBusMenuRowsTest, CommandsWithoutAnIDAreToldApartByTheirTitles)
{
    replace({command(QString(), u"Work"_s)});
    const int work = numbers_[0];
    replace({command(QString(), u"Home"_s)});
    EXPECT_EQ(choose(work), QString());
    EXPECT_EQ(choose(numbers_[0]), u"Home"_s);
}

TEST_F(DBusMenuRowsTest, NoCommandTakesTheNumberOfARowThatIsNone)
{
    replace({plainRow(MenuItem::Kind::text, u"Work"_s), plainRow(MenuItem::Kind::separator)});
    const QList<int> former = numbers_;
    replace({command(QString(), u"Work"_s), command(u"1"_s, u"Work"_s)});
    for (const int number : former)
        EXPECT_EQ(choose(number), QString());
}

TEST_F(DBusMenuRowsTest, TheLatestActionOfARowIsTheOneThatRuns)
{
    replace({command(u"1"_s, u"Work"_s, u"former"_s)});
    EXPECT_FALSE(replace({command(u"1"_s, u"Work"_s, u"latest"_s)}).hasAny);
    EXPECT_EQ(choose(numbers_[0]), u"latest"_s);
}

TEST_F(DBusMenuRowsTest, ChangesAreRowsThatComeGoOrMove)
{
    const MenuItem work = command(u"1"_s, u"Work"_s);
    const MenuItem home = command(u"2"_s, u"Home"_s);
    EXPECT_FALSE(replace({}).hasAny);
    EXPECT_TRUE(replace({work}).hasAny);
    EXPECT_FALSE(replace({work}).hasAny);
    EXPECT_TRUE(replace({work, home}).hasAny);
    EXPECT_FALSE(replace({work, home}).hasAny);
    const DBusMenuRows::Changes moved = replace({home, work});
    EXPECT_TRUE(moved.hasAny);
    EXPECT_TRUE(moved.properties.isEmpty());
    EXPECT_TRUE(replace({home, command(u"3"_s, u"Work"_s)}).hasAny);
    EXPECT_TRUE(replace({home}).hasAny);
    EXPECT_TRUE(replace({}).hasAny);
}

TEST_F(DBusMenuRowsTest, ChangesNameThePropertiesThatAreNewOtherOrGone)
{
    MenuItem item = command(u"1"_s, u"Work"_s);
    item.shortcut = QKeySequence(u"Ctrl+P"_s);
    const MenuItem other = command(u"2"_s, u"Home"_s);
    replace({item, other});
    item.title = u"Renamed"_s;
    item.shortcut = {};
    item.iconPNG = [](int pixels) { return test::squarePNG(pixels, 0xff00ff00); };
    const DBusMenuRows::Changes changes = replace({item, other});
    EXPECT_TRUE(changes.hasAny);
    EXPECT_EQ(changes.properties.keys(), QList<int>{numbers_[0]});
    EXPECT_EQ(changes.properties.first(), (QSet<QString>{u"label"_s, u"shortcut"_s, u"icon-data"_s}));
    item.shortcut = QKeySequence(u"Ctrl+P"_s);
    EXPECT_EQ(replace({item, other}).properties.first(), QSet<QString>{u"shortcut"_s});
    item.shortcut = QKeySequence(u"Ctrl+Q"_s);
    EXPECT_EQ(replace({item, other}).properties.first(), QSet<QString>{u"shortcut"_s});
}

} // namespace
} // namespace vantrel
