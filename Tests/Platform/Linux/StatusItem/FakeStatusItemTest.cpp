#include "Tests/Fakes/FakeStatusItem.h"

#include "Tests/Platform/Linux/StatusItem/MenuSamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

TEST(FakeStatusItem, ChoosesTheRowOfAnIDInTheMenuAsItIsNow)
{
    FakeStatusItem item;
    QStringList chosen;
    bool hasHome = true;
    const auto menu = [&] {
        Menu rows{plainRow(MenuItem::Kind::header, u"Browser"_s),
                  command(u"1"_s, u"Work"_s, [&] { chosen += u"1"_s; })};
        if (hasHome)
            rows.append(command(u"2"_s, u"Home"_s, [&] { chosen += u"2"_s; }));
        return rows;
    };
    item.start({.title = u"Title"_s, .iconName = {}, .icon = {}, .menu = menu}, [](bool) {});
    EXPECT_TRUE(item.choose(u"2"_s));
    hasHome = false;
    EXPECT_FALSE(item.choose(u"2"_s));
    EXPECT_FALSE(item.choose(QString()));
    EXPECT_EQ(chosen, QStringList(u"2"_s));
    EXPECT_EQ(item.openedMenu().size(), 2);
}

TEST(FakeStatusItem, SaysThatItIsShownWhenTheTestDoesAndCountsCalls)
{
    FakeStatusItem item;
    QList<bool> shown;
    item.start({.title = u"Title"_s, .iconName = {}, .icon = {}, .menu = {}}, [&](bool is) { shown += is; });
    EXPECT_EQ(shown, QList<bool>());
    item.setShown(false);
    item.setShown(true);
    EXPECT_EQ(shown, (QList<bool>{false, true}));
    item.updateMenu();
    EXPECT_EQ(item.menuUpdates(), 1);
    EXPECT_EQ(item.starts(), 1);
    EXPECT_EQ(item.content().title, u"Title"_s);
}

} // namespace
} // namespace vantrel::test
