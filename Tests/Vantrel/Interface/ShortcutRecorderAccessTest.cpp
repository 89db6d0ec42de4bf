#include "Tests/Vantrel/Interface/RecorderFixture.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::controlA;

/// The recorder for those who don't use a mouse, or don't see it well.
class ShortcutRecorderAccessTest : public test::RecorderFixture {
protected:
    [[nodiscard]] static QAccessibleInterface *accessible(QWidget *widget)
    {
        return QAccessible::queryAccessibleInterface(widget);
    }
};

TEST_F(ShortcutRecorderAccessTest, SpaceAndReturnStart)
{
    main(one_)->setFocus();
    press(keySpace);
    EXPECT_FALSE(one_->isRecording());
    release(keySpace);
    EXPECT_TRUE(one_->isRecording());
    press(keyEscape);
    EXPECT_FALSE(one_->isRecording());
    release(keyEscape);
    EXPECT_TRUE(press(keyReturn));
    EXPECT_TRUE(one_->isRecording());
    press(keyReturn, {}, Repeat::yes);
    release(keyReturn);
    EXPECT_TRUE(one_->isRecording());
    EXPECT_EQ(beeps_, 0);
}

TEST_F(ShortcutRecorderAccessTest, TheSpaceBarCanBeRecorded)
{
    click(main(one_));
    press(keySpace, Qt::ControlModifier);
    release(keySpace, Qt::ControlModifier);
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(shortcuts_.getShortcut(nameOne_), (Shortcut{49, CarbonModifier::control}));
}

TEST_F(ShortcutRecorderAccessTest, TabReachesBothButtons)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    other_->setFocus();
    press(keyTab);
    EXPECT_TRUE(main(one_)->hasFocus());
    press(keyTab);
    EXPECT_TRUE(remove(one_)->hasFocus());
    press(keySpace);
    release(keySpace);
    EXPECT_EQ(shortcuts_.getShortcut(nameOne_), std::nullopt);
    EXPECT_TRUE(main(one_)->hasFocus());
    press(keyTab);
    EXPECT_TRUE(main(two_)->hasFocus());
}

TEST_F(ShortcutRecorderAccessTest, ScreenReadersHearWhatItIsForAndWhatItDoes)
{
    one_->setSubject(u"Work"_s);
    QAccessibleInterface *button = accessible(main(one_));
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_EQ(button->text(QAccessible::Name), u"Work: Record Shortcut"_s);
    EXPECT_EQ(button->text(QAccessible::Description), u"Click, then press the shortcut that opens this profile"_s);
    EXPECT_FALSE(button->state().pressed);
    click(main(one_));
    EXPECT_EQ(button->text(QAccessible::Name), u"Work: Press Keys…"_s);
    EXPECT_EQ(button->text(QAccessible::Description), u"Press the keys, Escape to cancel"_s);
    EXPECT_TRUE(button->state().pressed);
    press(keyA, Qt::ControlModifier);
    EXPECT_EQ(button->text(QAccessible::Name), u"Work: ⌃A"_s);
    EXPECT_FALSE(button->state().pressed);
    EXPECT_EQ(accessible(remove(one_))->text(QAccessible::Name), u"Work: Remove the shortcut"_s);
}

TEST_F(ShortcutRecorderAccessTest, AScreenReadersPressStarts)
{
    QAccessibleInterface *button = accessible(main(one_));
    ASSERT_NE(button->actionInterface(), nullptr);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([this] { return one_->isRecording(); }));
    EXPECT_TRUE(main(one_)->hasFocus());
}

TEST_F(ShortcutRecorderAccessTest, NoTextIsCutOffWhenTextIsLarge)
{
    shortcuts_.setShortcut(Shortcut{96, 0x1b00}, nameOne_);
    QFont font = window_->font();
    const auto normalHeight = remove(one_)->iconSize().height();
    font.setPointSizeF(font.pointSizeF() * 2);
    window_->setFont(font);
    window_->resize(window_->minimumSizeHint());
    QCoreApplication::sendPostedEvents();
    for (const ShortcutRecorder *recorder : {one_, two_}) {
        for (const bool records : {false, true}) {
            if (records)
                click(main(recorder));
            QCoreApplication::sendPostedEvents();
            const QPushButton *button = main(recorder);
            const QSize text = QFontMetrics(button->font()).size(Qt::TextShowMnemonic, button->text());
            EXPECT_GE(button->width(), text.width()) << button->text().toStdString();
            EXPECT_GE(button->height(), text.height()) << button->text().toStdString();
            EXPECT_TRUE(recorder->rect().contains(button->geometry())) << button->text().toStdString();
            EXPECT_TRUE(window_->rect().contains(recorder->geometry())) << button->text().toStdString();
        }
    }
    EXPECT_GE(remove(one_)->iconSize().height(), normalHeight * 3 / 2);
    EXPECT_GE(remove(one_)->width(), remove(one_)->iconSize().width());
}

TEST_F(ShortcutRecorderAccessTest, TheSymbolHasTheColourOfTexts)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    QPalette dark;
    dark.setColor(QPalette::ButtonText, Qt::white);
    one_->setPalette(dark);
    const QImage symbol = remove(one_)->icon().pixmap(QSize(32, 32), 1.0).toImage();
    // On the disc, left of the cross.
    EXPECT_EQ(symbol.pixelColor(6, 16), QColor(Qt::white));
    // In the middle of the cross, and outside.
    EXPECT_EQ(symbol.pixelColor(16, 16).alpha(), 0);
    EXPECT_EQ(symbol.pixelColor(0, 0).alpha(), 0);
}

} // namespace
} // namespace vantrel
