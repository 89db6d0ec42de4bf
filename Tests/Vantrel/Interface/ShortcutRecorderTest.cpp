#include "Tests/Vantrel/Interface/RecorderFixture.h"

#include <QShortcut>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::controlA;
using test::controlP;

using ShortcutRecorderTest = test::RecorderFixture;

TEST_F(ShortcutRecorderTest, ShowsTheShortcutOrOffersToRecordOne)
{
    EXPECT_EQ(main(one_)->text(), u"Record Shortcut"_s);
    EXPECT_EQ(main(one_)->toolTip(), u"Click, then press the shortcut that opens this profile"_s);
    EXPECT_FALSE(remove(one_)->isVisible());
    shortcuts_.setShortcut(Shortcut{35, CarbonModifier::control | CarbonModifier::option}, nameOne_);
    EXPECT_EQ(main(one_)->text(), u"⌃⌥P"_s);
    EXPECT_TRUE(remove(one_)->isVisible());
    EXPECT_EQ(remove(one_)->toolTip(), u"Remove the shortcut"_s);
    EXPECT_EQ(main(two_)->text(), u"Record Shortcut"_s);
}

TEST_F(ShortcutRecorderTest, ShowsWhatIsStoredWhenItIsMade)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    showWindow();
    EXPECT_EQ(main(one_)->text(), u"⌃A"_s);
    EXPECT_TRUE(remove(one_)->isVisible());
}

TEST_F(ShortcutRecorderTest, FollowsTheLayoutAndShowsAmpersands)
{
    shortcuts_.setShortcut(Shortcut{18, CarbonModifier::control}, nameOne_);
    layout_.set(18, u"&"_s);
    one_->refresh();
    EXPECT_EQ(main(one_)->text(), u"⌃&&"_s);
    EXPECT_EQ(main(one_)->accessibleName(), u"⌃&"_s);
}

TEST_F(ShortcutRecorderTest, AClickStartsAndAnotherOneStops)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    click(main(one_));
    EXPECT_TRUE(one_->isRecording());
    EXPECT_EQ(main(one_)->text(), u"Press Keys…"_s);
    EXPECT_EQ(main(one_)->toolTip(), u"Press the keys, Escape to cancel"_s);
    click(main(one_));
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(main(one_)->text(), u"⌃A"_s);
    EXPECT_EQ(shortcuts_.getShortcut(nameOne_), controlA);
}

TEST_F(ShortcutRecorderTest, AllShortcutsAreOffExactlyWhileItRecords)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    shortcuts_.setShortcut(controlP, nameTwo_);
    click(main(one_));
    EXPECT_EQ(held(), 0);
    click(main(one_));
    EXPECT_EQ(held(), 2);
}

TEST_F(ShortcutRecorderTest, AnAcceptedShortcutIsStoredShownAndWatched)
{
    QSignalSpy changes(&shortcuts_, &KeyboardShortcuts::shortcutByNameDidChange);
    click(main(one_));
    EXPECT_TRUE(press(keyControl, Qt::ControlModifier));
    EXPECT_EQ(beeps_, 0);
    EXPECT_TRUE(press(keyA, Qt::ControlModifier));
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(shortcuts_.getShortcut(nameOne_), controlA);
    EXPECT_EQ(main(one_)->text(), u"⌃A"_s);
    EXPECT_TRUE(remove(one_)->isVisible());
    EXPECT_EQ(held(), 1);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(beeps_, 0);
}

TEST_F(ShortcutRecorderTest, SuperIsAcceptedAsWell)
{
    click(main(one_));
    press(keyA, Qt::MetaModifier | Qt::ShiftModifier);
    EXPECT_EQ(shortcuts_.getShortcut(nameOne_), (Shortcut{0, CarbonModifier::command | CarbonModifier::shift}));
}

TEST_F(ShortcutRecorderTest, EscapeKeepsTheOldShortcut)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    shortcuts_.setShortcut(controlP, nameTwo_);
    click(main(one_));
    EXPECT_TRUE(press(keyEscape));
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(shortcuts_.getShortcut(nameOne_), controlA);
    EXPECT_EQ(main(one_)->text(), u"⌃A"_s);
    EXPECT_EQ(held(), 2);
    EXPECT_EQ(beeps_, 0);
}

TEST_F(ShortcutRecorderTest, BothDeleteKeysRemoveTheShortcut)
{
    for (const Key key : {keyBackspace, keyDelete}) {
        shortcuts_.setShortcut(controlA, nameOne_);
        shortcuts_.setShortcut(controlP, nameTwo_);
        click(main(one_));
        EXPECT_TRUE(press(key));
        EXPECT_FALSE(one_->isRecording());
        EXPECT_EQ(shortcuts_.getShortcut(nameOne_), std::nullopt);
        EXPECT_EQ(main(one_)->text(), u"Record Shortcut"_s);
        EXPECT_FALSE(remove(one_)->isVisible());
        EXPECT_EQ(held(), 1);
    }
    click(main(one_));
    press(keyDelete);
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(beeps_, 0);
}

TEST_F(ShortcutRecorderTest, OtherKeysBeepAndRecordingGoesOn)
{
    click(main(one_));
    press(keyA);
    press(keyA, Qt::ShiftModifier);
    press(keyA, Qt::AltModifier);
    press(keyTab);
    press(keySpace);
    release(keySpace);
    press(keyReturn);
    press(keyEscape, Qt::ShiftModifier);
    press({127, Qt::Key_Pause}, Qt::ControlModifier);
    EXPECT_EQ(beeps_, 8);
    EXPECT_TRUE(one_->isRecording());
    EXPECT_TRUE(main(one_)->hasFocus());
    EXPECT_EQ(defaults_.writes(), 0);
}

TEST_F(ShortcutRecorderTest, AnotherProfilesShortcutIsRecordedHereTooAndOpensNothing)
{
    shortcuts_.setShortcut(controlP, nameTwo_);
    int opened = 0;
    shortcuts_.onKeyUp(nameTwo_, [&opened] { ++opened; });
    click(main(one_));
    port_.press(0x3b);
    EXPECT_FALSE(port_.press(35));
    press(keyP, Qt::ControlModifier);
    EXPECT_FALSE(port_.release(35));
    port_.release(0x3b);
    EXPECT_EQ(opened, 0);
    EXPECT_EQ(shortcuts_.getShortcut(nameOne_), controlP);
    EXPECT_EQ(shortcuts_.getShortcut(nameTwo_), controlP);
    EXPECT_EQ(held(), 1);
    port_.press(0x3b);
    port_.press(35);
    port_.release(35);
    EXPECT_EQ(opened, 1);
}

TEST_F(ShortcutRecorderTest, TheRemoveButtonRemovesWhetherItRecordsOrNot)
{
    for (const bool records : {false, true}) {
        shortcuts_.setShortcut(controlA, nameOne_);
        shortcuts_.setShortcut(controlP, nameTwo_);
        if (records)
            click(main(one_));
        click(remove(one_));
        EXPECT_FALSE(one_->isRecording());
        EXPECT_EQ(shortcuts_.getShortcut(nameOne_), std::nullopt);
        EXPECT_EQ(main(one_)->text(), u"Record Shortcut"_s);
        EXPECT_FALSE(remove(one_)->isVisible());
        EXPECT_EQ(held(), 1);
    }
}

TEST_F(ShortcutRecorderTest, AShortcutThatTwoShareStaysWithTheOther)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    shortcuts_.setShortcut(controlA, nameTwo_);
    click(remove(one_));
    EXPECT_EQ(shortcuts_.getShortcut(nameTwo_), controlA);
    EXPECT_EQ(held(), 1);
}

TEST_F(ShortcutRecorderTest, RemovingElsewhereEndsRecording)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    shortcuts_.setShortcut(controlP, nameTwo_);
    click(main(one_));
    click(remove(two_));
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(shortcuts_.getShortcut(nameTwo_), std::nullopt);
    EXPECT_EQ(held(), 1);
}

TEST_F(ShortcutRecorderTest, OnlyOneRecordsAtATime)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    click(main(one_));
    click(main(two_));
    EXPECT_FALSE(one_->isRecording());
    EXPECT_TRUE(two_->isRecording());
    EXPECT_EQ(held(), 0);
    press(keyP, Qt::ControlModifier);
    EXPECT_EQ(shortcuts_.getShortcut(nameOne_), controlA);
    EXPECT_EQ(shortcuts_.getShortcut(nameTwo_), controlP);
    EXPECT_EQ(held(), 2);
}

TEST_F(ShortcutRecorderTest, RecordingEndsWithTheFocus)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    click(main(one_));
    EXPECT_EQ(held(), 0);
    other_->setFocus();
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(held(), 1);
}

TEST_F(ShortcutRecorderTest, RecordingEndsWhenAnotherWindowBecomesActive)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    click(main(one_));
    QWidget another;
    another.show();
    another.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&another));
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(held(), 1);
}

TEST_F(ShortcutRecorderTest, RecordingEndsWithTheWindow)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    click(main(one_));
    window_->close();
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(held(), 1);
}

TEST_F(ShortcutRecorderTest, RecordingEndsWithTheRecorder)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    click(main(one_));
    delete one_;
    EXPECT_EQ(held(), 1);
    window_.reset();
}

TEST_F(ShortcutRecorderTest, ARecorderThatIsHiddenOrDisabledRecordsNoMore)
{
    shortcuts_.setShortcut(controlA, nameOne_);
    click(main(one_));
    one_->hide();
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(held(), 1);
    one_->show();
    click(main(one_));
    EXPECT_EQ(held(), 0);
    one_->setEnabled(false);
    EXPECT_FALSE(one_->isRecording());
    EXPECT_EQ(held(), 1);
}

TEST_F(ShortcutRecorderTest, TheWindowsOwnShortcutsSleepWhileItRecords)
{
    const QShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_F5), window_.get());
    QSignalSpy activated(&shortcut, &QShortcut::activated);
    QTest::keyClick(window_->windowHandle(), Qt::Key_F5, Qt::ControlModifier);
    ASSERT_EQ(activated.size(), 1);
    click(main(one_));
    QTest::keyClick(window_->windowHandle(), Qt::Key_F5, Qt::ControlModifier);
    EXPECT_EQ(activated.size(), 1);
    EXPECT_EQ(shortcuts_.getShortcut(nameOne_), (Shortcut{96, CarbonModifier::control}));
    QTest::keyClick(window_->windowHandle(), Qt::Key_F5, Qt::ControlModifier);
    EXPECT_EQ(activated.size(), 2);
}

TEST_F(ShortcutRecorderTest, RepeatsOfAKeyThatIsHeldAreNobodys)
{
    click(main(one_));
    press(keyA);
    press(keyA, {}, Repeat::yes);
    EXPECT_EQ(beeps_, 1);
    EXPECT_TRUE(press(keyEscape));
    EXPECT_FALSE(one_->isRecording());
    EXPECT_TRUE(press(keyEscape, {}, Repeat::yes));
    release(keyEscape);
    EXPECT_FALSE(press(keyEscape));
    EXPECT_FALSE(press(keyEscape, {}, Repeat::yes));
}

TEST_F(ShortcutRecorderTest, WhatChangesElsewhereIsShownAndRecordingGoesOn)
{
    click(main(one_));
    shortcuts_.setShortcut(controlP, nameOne_);
    EXPECT_TRUE(one_->isRecording());
    EXPECT_EQ(main(one_)->text(), u"Press Keys…"_s);
    EXPECT_TRUE(remove(one_)->isVisible());
    press(keyEscape);
    EXPECT_EQ(main(one_)->text(), u"⌃P"_s);
}

} // namespace
} // namespace vantrel
