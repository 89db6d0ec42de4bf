#include "Tests/Vantrel/Interface/Settings/SettingsFixture.h"

#include <QApplication>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::brave;
using test::chrome;

/// A list that is much longer than the window is high.
class LongListTest : public test::SettingsFixture {
protected:
    LongListTest()
    {
        program_.install({chrome, brave});
        discover(brave, numbered(500));
        discover(chrome, numbered(500));
    }

    static QStringList numbered(int count)
    {
        QStringList names;
        for (int number = 0; number < count; ++number)
            names.append(QString::number(number));
        return names;
    }

    [[nodiscard]] QScrollBar *scrollBar() const { return window_->findChild<ProfilesView *>()->verticalScrollBar(); }
    [[nodiscard]] qsizetype liveRows() const { return window_->findChildren<ProfileRow *>().size(); }

    /// Where on the screen a row is.
    [[nodiscard]] int place(const QString &notation) const { return row(notation)->mapToGlobal(QPoint()).y(); }

    /// The profile whose row has the focus.
    [[nodiscard]] static QString focused()
    {
        for (QWidget *widget = QApplication::focusWidget(); widget; widget = widget->parentWidget()) {
            if (auto *focusedRow = qobject_cast<ProfileRow *>(widget))
                return focusedRow->profileID().section(u':', -1);
        }
        return {};
    }
};

TEST_F(LongListTest, OnlyRowsThatAreNearlySeenAreMade)
{
    show();
    EXPECT_LT(liveRows(), 40);
    for (const int part : {1, 2, 3, 4}) {
        scrollBar()->setValue(scrollBar()->maximum() * part / 4);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_LT(liveRows(), 40);
    }
    ASSERT_NE(row(u"c:private"_s), nullptr);
    EXPECT_LE(row(u"c:private"_s)->mapTo(window_.get(), QPoint(0, row(u"c:private"_s)->height())).y(),
              window_->height());
}

TEST_F(LongListTest, TabGoesThroughAllRowsAndTheListFollows)
{
    show();
    name(u"b:0"_s)->setFocus();
    constexpr int rowCount = 60;
    QStringList passed{focused()};
    for (int step = 0; passed.size() < rowCount && step < rowCount * 5; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget *focus = QApplication::focusWidget();
        const auto *view = window_->findChild<ProfilesView *>();
        ASSERT_TRUE(view->viewport()->rect().contains(focus->mapTo(view->viewport(), focus->rect().center())));
        if (focused() != passed.last())
            passed.append(focused());
    }
    EXPECT_EQ(passed, numbered(rowCount));
    for (int step = 0; focused() != u"0"_s && step < rowCount * 5; ++step)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), u"0"_s);
}

TEST_F(LongListTest, ARowThatIsInUseStaysWhenItIsScrolledAwayAndTabGoesOnFromIt)
{
    show();
    name(u"b:3"_s)->setFocus();
    name(u"b:3"_s)->selectAll();
    QTest::keyClicks(name(u"b:3"_s), u"Home"_s);
    scrollBar()->setValue(scrollBar()->maximum());
    EXPECT_TRUE(program_.store.customNames().isEmpty());
    QTest::keyClicks(QApplication::focusWidget(), u"!"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(program_.store.customNames().value(id(u"b:3"_s)), u"Home!"_s);
    EXPECT_EQ(focused(), u"3"_s);
    EXPECT_LT(scrollBar()->value(), 100);
}

TEST_F(LongListTest, WhatIsSeenStaysInPlaceWhenTheListChangesAboveIt)
{
    show();
    scrollBar()->setValue(scrollBar()->maximum() * 3 / 4);
    ASSERT_FALSE(rows().isEmpty());
    const QString top = rows().section(u' ', 6, 6);
    const int before = place(top);
    discover(brave, numbered(300));
    EXPECT_EQ(place(top), before);
    discover(brave, numbered(700));
    EXPECT_EQ(place(top), before);
    program_.store.apply({{brave, std::unexpected(ProfileDiscoveryError::readFailed(u"/x"_s, u"A reason."_s))}});
    EXPECT_EQ(place(top), before);
}

TEST_F(LongListTest, MovingByKeysKeepsTheRowInSight)
{
    show();
    name(u"b:2"_s)->setFocus();
    for (int step = 0; step < 40; ++step)
        QTest::keyClick(window_.get(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(program_.store.profilesOf(brave).indexOf(test::profiles(u"b:2"_s).first()), 42);
    const auto *view = window_->findChild<ProfilesView *>();
    const QWidget *focus = QApplication::focusWidget();
    EXPECT_EQ(focused(), u"2"_s);
    EXPECT_TRUE(view->viewport()->rect().contains(focus->mapTo(view->viewport(), focus->rect().center())));
}

TEST_F(LongListTest, ADragNearTheEdgeScrolls)
{
    show();
    ProfileRow *dragged = row(u"b:0"_s);
    const QPoint start(4, dragged->height() / 2);
    QTest::mousePress(dragged, Qt::LeftButton, {}, start);
    const auto *view = window_->findChild<ProfilesView *>();
    const QPoint edge =
        dragged->mapFromGlobal(view->viewport()->mapToGlobal(QPoint(20, view->viewport()->height() - 2)));
    QTest::mouseMove(dragged, start + QPoint(0, 40));
    QTest::mouseMove(dragged, edge);
    EXPECT_TRUE(QTest::qWaitFor([this] { return scrollBar()->value() > 300; }));
    QTest::mouseRelease(dragged, Qt::LeftButton);
    EXPECT_GT(program_.store.profilesOf(brave).indexOf(test::profiles(u"b:0"_s).first()), 15);
}

} // namespace
} // namespace vantrel
