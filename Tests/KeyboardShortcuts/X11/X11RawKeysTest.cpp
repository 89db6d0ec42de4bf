#include "Tests/KeyboardShortcuts/X11/HotKeysFixture.h"
#include "Vantrel/Interface/PopupMenuStyle.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::keyA, test::keyP, test::control, test::option, test::shift;

/// A program whose menu is open, with rows that letters choose.
class X11RawKeysTest : public test::HotKeysFixture {
protected:
    void SetUp() override
    {
        menu_.setStyle(&style_);
        for (const QString &title : {u"&Alpha"_s, u"&Amber"_s, u"&Papa"_s, u"&Pepper"_s})
            menu_.addAction(title);
        openMenu();
    }

    void openMenu()
    {
        menu_.popup({20, 20});
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu_));
    }

    /// The title of the row that is chosen.
    [[nodiscard]] QString active() const { return menu_.activeAction() ? menu_.activeAction()->text() : QString(); }

    [[nodiscard]] QWidget &menu() { return menu_; }

private:
    PopupMenuStyle style_;

protected:
    QMenu menu_;
};

TEST_F(X11RawKeysTest, KeysAreHeardWhileAMenuIsOpenAndTheMenuDoesNotSeeThem)
{
    rawKeys_ = {{keyA, control | shift}, {keyP, control | option}};
    listen(HotKeyPort::Listening::rawKeys);
    type("key", "ctrl+shift+a");
    EXPECT_EQ(heard(), QStringList({u"raw press 1200+0"_s, u"raw release 1200+0"_s}));
    EXPECT_EQ(active(), QString());
    type("key", "ctrl+alt+p");
    EXPECT_EQ(heard(), QStringList({u"raw press 1800+23"_s, u"raw release 1800+23"_s}));
    EXPECT_TRUE(menu_.isVisible());
    EXPECT_EQ(active(), QString());
}

TEST_F(X11RawKeysTest, OtherKeysAreTheMenus)
{
    rawKeys_ = {{keyA, control | shift}};
    listen(HotKeyPort::Listening::rawKeys);
    type("key", "a");
    EXPECT_EQ(heard(), QStringList());
    EXPECT_EQ(active(), u"&Alpha"_s);
    type("key", "Down");
    EXPECT_EQ(heard(), QStringList());
    EXPECT_EQ(active(), u"&Amber"_s);
}

TEST_F(X11RawKeysTest, AKeyThatIsHeldIsHeardOnceAndItsRepeatsDoNotReachTheMenu)
{
    rawKeys_ = {{keyP, 0}};
    listen(HotKeyPort::Listening::rawKeys);
    const test::KeyEventCounter counter;
    type("keydown", "p");
    ASSERT_TRUE(eventually([&] { return counter.presses() > 5; })) << "The server repeats the key.";
    type("keyup", "p");
    EXPECT_EQ(heard(), QStringList({u"raw press 0+23"_s, u"raw release 0+23"_s}));
    EXPECT_EQ(active(), QString());
}

TEST_F(X11RawKeysTest, ModifiersMayBeLetGoFirst)
{
    rawKeys_ = {{keyP, control | option}};
    listen(HotKeyPort::Listening::rawKeys);
    type("keydown", "ctrl+alt+p");
    type("keyup", "alt");
    type("keyup", "ctrl");
    EXPECT_EQ(heard(), QStringList(u"raw press 1800+23"_s));
    type("keyup", "p");
    EXPECT_EQ(heard(), QStringList(u"raw release 1800+23"_s));
    EXPECT_EQ(active(), QString());
}

TEST_F(X11RawKeysTest, LocksMakeNoDifference)
{
    rawKeys_ = {{keyA, control | shift}};
    listen(HotKeyPort::Listening::rawKeys);
    for (const char *lock : {"Caps_Lock", "Num_Lock", "Caps_Lock", "Num_Lock"}) {
        type("key", lock);
        type("key", "ctrl+shift+a");
        EXPECT_EQ(heard(), QStringList({u"raw press 1200+0"_s, u"raw release 1200+0"_s})) << lock;
    }
}

TEST_F(X11RawKeysTest, AltDoesNotCloseTheMenu)
{
    listen(HotKeyPort::Listening::rawKeys);
    type("key", "alt");
    type("key", "Alt_R");
    EXPECT_EQ(heard(), QStringList());
    EXPECT_TRUE(menu_.isVisible());
}

TEST_F(X11RawKeysTest, AHotKeyThatIsHeldWhileTheMenuOpensIsReleasedOnce)
{
    menu_.close();
    listen(HotKeyPort::Listening::hotKeys);
    add(1, keyP, control);
    const test::KeyEventCounter counter;
    type("keydown", "ctrl+p");
    ASSERT_TRUE(hears(u"press 1"_s));
    keys_->remove(1);
    rawKeys_ = {{keyP, control}};
    listen(HotKeyPort::Listening::rawKeys);
    openMenu();
    const int before = counter.presses();
    ASSERT_TRUE(eventually([&] { return counter.presses() > before + 3; })) << "The server repeats the key.";
    type("keyup", "ctrl+p");
    EXPECT_EQ(heard(), QStringList({u"press 1"_s, u"raw release 1000+23"_s}));
    EXPECT_EQ(active(), QString());
}

TEST_F(X11RawKeysTest, AKeyThatIsHeldWhileTheMenuClosesIsReleasedOnce)
{
    rawKeys_ = {{keyP, control}};
    listen(HotKeyPort::Listening::rawKeys);
    const test::KeyEventCounter counter;
    type("keydown", "ctrl+p");
    ASSERT_TRUE(eventually([&] { return counter.presses() > 3; }));
    menu_.close();
    add(1, keyP, control);
    listen(HotKeyPort::Listening::hotKeys);
    const int before = counter.presses();
    ASSERT_TRUE(eventually([&] { return counter.presses() > before + 3; })) << "The server repeats the key.";
    type("keyup", "ctrl+p");
    EXPECT_EQ(heard(), QStringList({u"raw press 1000+23"_s, u"release 1"_s}));
    type("key", "ctrl+p");
    EXPECT_EQ(heard(), QStringList({u"press 1"_s, u"release 1"_s}));
}

TEST_F(X11RawKeysTest, AReleaseThatAnotherProgramHasHeardDoesNotCostTheNextPress)
{
    rawKeys_ = {{keyP, control}};
    listen(HotKeyPort::Listening::rawKeys);
    type("keydown", "ctrl+p");
    const test::KeyEventCounter counter;
    ASSERT_TRUE(eventually([&] { return counter.presses() > 1; }));
    menu_.close();
    listen(HotKeyPort::Listening::hotKeys);
    type("keyup", "ctrl+p");
    // A key that is pressed again later than one that is held repeats itself.
    QTest::qWait(1600);
    add(1, keyP, control);
    type("key", "ctrl+p");
    EXPECT_EQ(heard(), QStringList({u"raw press 1000+23"_s, u"press 1"_s, u"release 1"_s}));
}

} // namespace
} // namespace vantrel
