#include "Vantrel/Interface/PopupMenu.h"

#include <QAction>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The menu where the system draws it. Of its opening and closing only the signals come here, as from the system's menu
/// through Qt.
class MenuBarMenuTest : public testing::Test {
protected:
    void open() { Q_EMIT menu_.aboutToShow(); }
    void close() { Q_EMIT menu_.aboutToHide(); }

    [[nodiscard]] QStringList titles() const
    {
        QStringList titles;
        for (const QAction *action : menu_.actions())
            titles.append(action->text());
        return titles;
    }

    Menu rows_;
    int asked_ = 0;
    PopupMenu menu_{[this] {
                        ++asked_;
                        return rows_;
                    },
                    TrayHost::menuBar};
};

TEST_F(MenuBarMenuTest, HasARowBeforeItFirstOpensWhichIsGoneThen)
{
    ASSERT_EQ(menu_.actions().size(), 1);
    EXPECT_FALSE(menu_.actions().first()->isEnabled());
    EXPECT_EQ(asked_, 0);
    rows_ = {{.title = u"One"_s, .id = u"1"_s}};
    open();
    EXPECT_EQ(titles(), QStringList(u"One"_s));
}

TEST_F(MenuBarMenuTest, BrowsersAreRowsThatCantBeChosenInsteadOfTitledSeparators)
{
    rows_ = {{.kind = MenuItem::Kind::header, .title = u"A & B\tC"_s},
             {.title = u"One"_s, .id = u"1"_s},
             {.kind = MenuItem::Kind::separator},
             {.kind = MenuItem::Kind::text, .title = u"Nothing"_s}};
    open();
    const QList<QAction *> rows = menu_.actions();
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0]->text(), u"A && B C"_s);
    EXPECT_FALSE(rows[0]->isSeparator());
    EXPECT_FALSE(rows[0]->isEnabled());
    EXPECT_TRUE(rows[1]->isEnabled());
    EXPECT_TRUE(rows[2]->isSeparator());
    EXPECT_FALSE(rows[3]->isEnabled());
}

TEST_F(MenuBarMenuTest, AShortcutIsNoPartOfTheTitle)
{
    const QKeySequence keys(Qt::META | Qt::ALT | Qt::Key_P);
    rows_ = {{.title = u"One"_s, .id = u"1"_s, .shortcut = keys}};
    open();
    EXPECT_EQ(titles(), QStringList(u"One"_s));
    EXPECT_EQ(menu_.actions().first()->shortcut(), keys);
    EXPECT_EQ(menu_.actions().first()->shortcutContext(), Qt::WidgetShortcut);
    EXPECT_EQ(menu_.actions().first()->menuRole(), QAction::NoRole);
}

TEST_F(MenuBarMenuTest, FollowsItsRowsFromOpeningToClosing)
{
    menu_.updateRows();
    EXPECT_EQ(asked_, 0);
    rows_ = {{.title = u"One"_s, .id = u"1"_s}};
    open();
    ASSERT_FALSE(menu_.isVisible());
    rows_ = {{.title = u"Two"_s, .id = u"2"_s}};
    menu_.updateRows();
    EXPECT_EQ(titles(), QStringList(u"Two"_s));
    // The system's menu is there already; a drawn one beside it would take the keyboard.
    EXPECT_FALSE(menu_.isVisible());
    close();
    rows_ = {{.title = u"Three"_s, .id = u"3"_s}};
    menu_.updateRows();
    EXPECT_EQ(titles(), QStringList(u"Two"_s));
    open();
    EXPECT_EQ(titles(), QStringList(u"Three"_s));
    close();
}

TEST_F(MenuBarMenuTest, CanBeDrawnByTheToolkitToo)
{
    rows_ = {{.title = u"One"_s, .id = u"1"_s}};
    menu_.popup({10, 10});
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu_));
    menu_.setActiveAction(menu_.actions().first());
    rows_.prepend({.title = u"Zero"_s, .id = u"0"_s});
    menu_.updateRows();
    EXPECT_EQ(titles(), QStringList({u"Zero"_s, u"One"_s}));
    EXPECT_EQ(menu_.activeAction(), menu_.actions().last());
    menu_.close();
    menu_.updateRows();
    EXPECT_EQ(asked_, 2);
}

} // namespace
} // namespace vantrel
