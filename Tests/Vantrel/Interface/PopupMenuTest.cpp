#include "Vantrel/Interface/PopupMenu.h"

#include "Tests/Fakes/FakeActivationPolicy.h"
#include "Tests/VantrelKit/Samples.h"

#include <QAction>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class PopupMenuTest : public testing::Test {
protected:
    [[nodiscard]] MenuItem command(const QString &title, const QString &id)
    {
        return {.title = title, .id = id, .action = [this, id] { chosen_.append(id); }};
    }

    /// Opens the menu, and waits until it is there.
    void open()
    {
        menu_.popup({10, 10});
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu_));
    }

    [[nodiscard]] QStringList titles() const
    {
        QStringList titles;
        for (const QAction *action : menu_.actions())
            titles.append(action->text());
        return titles;
    }

    [[nodiscard]] QAction *row(const QString &id) const
    {
        for (QAction *action : menu_.actions()) {
            if (action->objectName() == id)
                return action;
        }
        return nullptr;
    }

    Menu rows_;
    QStringList chosen_;
    PopupMenu menu_{[this] { return rows_; }, TrayHost::plain};
};

TEST_F(PopupMenuTest, IsBuiltAnewEachTimeItOpens)
{
    rows_ = {command(u"One"_s, u"1"_s)};
    EXPECT_TRUE(titles().isEmpty());
    open();
    EXPECT_EQ(titles(), QStringList(u"One"_s));
    menu_.close();
    rows_ = {command(u"Two"_s, u"2"_s)};
    open();
    EXPECT_EQ(titles(), QStringList(u"Two"_s));
}

TEST_F(PopupMenuTest, RowsThatLookTheSameStayAndDoWhatTheirLatestOnesDo)
{
    const auto rowsWith = [this](const QString &mark, Qt::GlobalColor color) -> Menu {
        return {{.kind = MenuItem::Kind::header, .title = u"Chrome"_s},
                {.title = u"One"_s,
                 .id = u"1"_s,
                 .shortcut = Qt::CTRL | Qt::Key_1,
                 .icon =
                     [color](int pixels) {
                         QImage image(pixels, pixels, QImage::Format_ARGB32);
                         image.fill(color);
                         return image;
                     },
                 .action = [this, mark] { chosen_.append(mark); }}};
    };
    const auto color = [this] { return row(u"1"_s)->icon().pixmap(16).toImage().pixelColor(8, 8); };
    rows_ = rowsWith(u"former"_s, Qt::red);
    menu_.prepare();
    const QList<QAction *> prepared = menu_.actions();
    ASSERT_EQ(prepared.size(), 2);
    EXPECT_EQ(color(), QColor(Qt::red));
    rows_ = rowsWith(u"latest"_s, Qt::green);
    open();
    EXPECT_EQ(menu_.actions(), prepared);
    EXPECT_EQ(color(), QColor(Qt::green));
    QTest::keyClick(&menu_, Qt::Key_Down);
    QTest::keyClick(&menu_, Qt::Key_Return);
    EXPECT_EQ(chosen_, QStringList(u"latest"_s));
}

TEST_F(PopupMenuTest, EveryDifferenceThatIsSeenIsTakenOver)
{
    const auto icon = [](int pixels) { return QImage(pixels, pixels, QImage::Format_ARGB32); };
    const MenuItem first{.title = u"One"_s, .id = u"1"_s, .shortcut = Qt::CTRL | Qt::Key_1, .icon = icon};
    const std::vector<std::function<void(MenuItem &)>> changes{
        [](MenuItem &item) { item.title = u"Uno"_s; },
        [](MenuItem &item) { item.id = u"2"_s; },
        [](MenuItem &item) { item.shortcut = Qt::CTRL | Qt::Key_2; },
        [](MenuItem &item) { item.icon = {}; },
        [](MenuItem &item) { item = {.kind = MenuItem::Kind::text, .title = u"One"_s}; },
    };
    for (const auto &change : changes) {
        rows_ = {first};
        menu_.prepare();
        change(rows_.first());
        open();
        ASSERT_EQ(menu_.actions().size(), 1);
        const QAction *shown = menu_.actions().first();
        const MenuItem &wanted = rows_.first();
        EXPECT_EQ(shown->text().section(u'\t', 0, 0), wanted.title);
        EXPECT_EQ(shown->objectName(), wanted.id);
        EXPECT_EQ(shown->shortcut(), wanted.shortcut);
        EXPECT_EQ(shown->icon().isNull(), !wanted.icon);
        EXPECT_EQ(shown->isEnabled(), wanted.kind == MenuItem::Kind::command);
        menu_.close();
    }
}

TEST_F(PopupMenuTest, WhatIsPreparedWhileItIsOpenDoesNotDisturbIt)
{
    rows_ = {command(u"One"_s, u"1"_s), command(u"Two"_s, u"2"_s)};
    open();
    menu_.setActiveAction(row(u"2"_s));
    rows_ = {command(u"Three"_s, u"3"_s)};
    menu_.prepare();
    EXPECT_EQ(titles(), QStringList({u"One"_s, u"Two"_s}));
    EXPECT_EQ(menu_.activeAction(), row(u"2"_s));
}

TEST_F(PopupMenuTest, HeadersAndTextsCanNotBeChosen)
{
    rows_ = {{.kind = MenuItem::Kind::header, .title = u"Chrome"_s},
             {.kind = MenuItem::Kind::text, .title = u"Nothing"_s},
             {.kind = MenuItem::Kind::separator},
             command(u"One"_s, u"1"_s)};
    open();
    const QList<QAction *> actions = menu_.actions();
    ASSERT_EQ(actions.size(), 4);
    EXPECT_TRUE(actions[0]->isSeparator());
    EXPECT_EQ(actions[0]->text(), u"Chrome"_s);
    EXPECT_FALSE(actions[1]->isEnabled());
    EXPECT_TRUE(actions[2]->isSeparator());
    EXPECT_TRUE(actions[2]->text().isEmpty());
    QTest::keyClick(&menu_, Qt::Key_Down);
    EXPECT_EQ(menu_.activeAction(), row(u"1"_s));
}

TEST_F(PopupMenuTest, ARowIsChosenByKeyboardAndByMouse)
{
    rows_ = {command(u"One"_s, u"1"_s), command(u"Two"_s, u"2"_s)};
    open();
    QTest::keyClick(&menu_, Qt::Key_Down);
    QTest::keyClick(&menu_, Qt::Key_Down);
    QTest::keyClick(&menu_, Qt::Key_Return);
    EXPECT_EQ(chosen_, QStringList(u"2"_s));
    open();
    QTest::mouseClick(&menu_, Qt::LeftButton, {}, menu_.actionGeometry(row(u"1"_s)).center());
    EXPECT_EQ(chosen_, QStringList({u"2"_s, u"1"_s}));
}

TEST_F(PopupMenuTest, TitlesHaveNoMnemonicsAndStayOneLine)
{
    rows_ = {command(u"a_b & c&d"_s, u"1"_s), command(u"x\ty\nz"_s, u"2"_s)};
    open();
    EXPECT_EQ(titles(), QStringList({u"a_b && c&&d"_s, u"x y z"_s}));
}

TEST_F(PopupMenuTest, WhileItIsOpenItFollowsItsRows)
{
    rows_ = {command(u"One"_s, u"1"_s), command(u"Two"_s, u"2"_s)};
    menu_.updateRows();
    EXPECT_TRUE(titles().isEmpty());
    open();
    menu_.setActiveAction(row(u"2"_s));
    rows_ = {command(u"Zero"_s, u"0"_s), command(u"Deux"_s, u"2"_s), command(u"Three"_s, u"3"_s)};
    menu_.updateRows();
    EXPECT_EQ(titles(), QStringList({u"Zero"_s, u"Deux"_s, u"Three"_s}));
    EXPECT_EQ(menu_.activeAction(), row(u"2"_s));
    rows_ = {command(u"Zero"_s, u"0"_s)};
    menu_.updateRows();
    EXPECT_EQ(menu_.activeAction(), nullptr);
    EXPECT_TRUE(menu_.isVisible());
}

TEST_F(PopupMenuTest, OpensBesideASymbolAndNeverOverIt)
{
    for (int number = 0; number < 10; ++number)
        rows_.append(command(QString::number(number), QString::number(number)));
    const QRect area = menu_.screen()->availableGeometry();
    const QRect above(area.left() + 50, area.top(), 24, 24);
    const QRect below(area.left() + 50, area.bottom() - 23, 24, 24);
    for (const QRect &symbol : {above, below}) {
        menu_.popupBeside(symbol);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu_));
        EXPECT_FALSE(menu_.geometry().intersects(symbol)) << symbol.top();
        EXPECT_TRUE(area.contains(menu_.geometry())) << symbol.top();
        EXPECT_EQ(titles().size(), 10);
        menu_.close();
    }
}

TEST_F(PopupMenuTest, TheProgramComesToTheFrontBeforeItsMenuOpens)
{
    rows_ = {command(u"One"_s, u"1"_s)};
    test::FakeActivationPolicy policy;
    bool wasOpen = false;
    policy.onActivate([&] { wasOpen = menu_.isVisible(); });
    menu_.popupInFront({10, 10}, policy);
    EXPECT_EQ(policy.activations(), 1);
    EXPECT_FALSE(wasOpen);
    EXPECT_TRUE(menu_.isVisible());
    EXPECT_EQ(titles(), QStringList(u"One"_s));
}

TEST_F(PopupMenuTest, AMenuThatGrowsWhileItIsOpenStaysInReach)
{
    rows_ = {command(u"One"_s, u"1"_s)};
    const QRect area = menu_.screen()->availableGeometry();
    menu_.popup(area.center());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu_));
    for (const int count : {24, 400}) {
        rows_.clear();
        for (int number = 0; number < count; ++number)
            rows_.append(command(QString::number(number), QString::number(number)));
        menu_.updateRows();
        EXPECT_TRUE(area.contains(menu_.geometry())) << count;
        EXPECT_EQ(titles().size(), count);
        EXPECT_TRUE(menu_.isVisible());
    }
    // From the first row up is the last one.
    QTest::keyClick(&menu_, Qt::Key_Down);
    QTest::keyClick(&menu_, Qt::Key_Up);
    EXPECT_EQ(menu_.activeAction(), row(u"399"_s));
    EXPECT_TRUE(menu_.rect().contains(menu_.actionGeometry(row(u"399"_s))));
}

TEST_F(PopupMenuTest, StaysOpenWhenAltIsPressed)
{
    rows_ = {command(u"One"_s, u"1"_s)};
    open();
    QTest::keyClick(&menu_, Qt::Key_Alt);
    EXPECT_TRUE(menu_.isVisible());
    QTest::keyClick(&menu_, Qt::Key_Escape);
    EXPECT_FALSE(menu_.isVisible());
}

TEST_F(PopupMenuTest, AShortcutIsOnlyShown)
{
    MenuItem item = command(u"One"_s, u"1"_s);
    item.shortcut = QKeySequence(Qt::META | Qt::ALT | Qt::Key_P);
    rows_ = {item};
    open();
    EXPECT_EQ(row(u"1"_s)->shortcut(), item.shortcut);
    EXPECT_EQ(row(u"1"_s)->text(), u"One\tSuper+Alt+P"_s);
    EXPECT_TRUE(row(u"1"_s)->isShortcutVisibleInContextMenu());
    menu_.close();
    QTest::keyClick(&menu_, Qt::Key_P, Qt::MetaModifier | Qt::AltModifier);
    EXPECT_TRUE(chosen_.isEmpty());
}

TEST_F(PopupMenuTest, IconsAreDrawnWhenTheyAreShownAndSharpAtEachScale)
{
    QList<int> sizes;
    MenuItem item = command(u"One"_s, u"1"_s);
    item.icon = [&sizes](int pixels) {
        sizes.append(pixels);
        QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::red);
        return image;
    };
    rows_ = {item};
    open();
    const QIcon icon = row(u"1"_s)->icon();
    sizes.clear();
    EXPECT_EQ(icon.pixmap(QSize(16, 16), 1.0).size(), QSize(16, 16));
    EXPECT_EQ(icon.pixmap(QSize(16, 16), 1.5).size(), QSize(24, 24));
    EXPECT_EQ(icon.pixmap(QSize(16, 16), 2.0).size(), QSize(32, 32));
    EXPECT_EQ(sizes, QList<int>({16, 24, 32}));
    EXPECT_EQ(icon.pixmap(QSize(16, 16), 2.0).toImage().pixelColor(16, 16), QColor(Qt::red));
}

TEST_F(PopupMenuTest, IconsOutOfSightAreNotDrawn)
{
    int drawn = 0;
    for (int number = 0; number < 1000; ++number) {
        MenuItem item = command(QString::number(number), QString::number(number));
        item.icon = [&drawn](int pixels) {
            ++drawn;
            return QImage(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        };
        rows_.append(item);
    }
    open();
    std::ignore = menu_.grab(QRect(0, 0, 100, 100));
    EXPECT_GT(drawn, 0);
    EXPECT_LT(drawn, 500);
}

TEST_F(PopupMenuTest, AnyTitleIsShown)
{
    for (const QString &title : test::oddTexts())
        rows_.append(command(title, title));
    open();
    EXPECT_EQ(menu_.actions().size(), test::oddTexts().size());
    EXPECT_FALSE(menu_.grab().isNull());
}

} // namespace
} // namespace vantrel
