#include "Tests/Fakes/FakeStatusItem.h"

#include "Tests/Contract/StatusItemContract.h"
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

TEST(FakeStatusItem, CountsCalls)
{
    FakeStatusItem item;
    item.start({.title = u"Title"_s, .iconName = {}, .icon = {}, .menu = {}}, [](bool) {});
    item.updateMenu();
    EXPECT_EQ(item.menuUpdates(), 1);
    EXPECT_EQ(item.starts(), 1);
    EXPECT_EQ(item.content().title, u"Title"_s);
}

class FakeStatusItemSystem {
public:
    StatusItem &item() { return item_; }
    void addPanel() { item_.setShown(true); }
    void removePanel() { item_.setShown(false); }

    [[nodiscard]] QStringList openMenu() const
    {
        QStringList titles;
        for (const MenuItem &row : item_.openedMenu())
            titles.append(row.title);
        return titles;
    }

    /// Rows have their titles as ids.
    void choose(const QString &title) const { EXPECT_TRUE(item_.choose(title)); }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
    FakeStatusItem item_;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, StatusItemContract, FakeStatusItemSystem);

} // namespace vantrel::test
