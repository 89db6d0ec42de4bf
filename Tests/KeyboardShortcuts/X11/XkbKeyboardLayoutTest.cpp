#include "KeyboardShortcuts/X11/XkbKeyboardLayout.h"

#include "KeyboardShortcuts/X11/Xkb.h"
#include "Tests/Contract/KeyboardLayoutContract.h"
#include "Tests/KeyboardShortcuts/X11/XServer.h"

#include <QGuiApplication>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr std::uint32_t keyA = 0x00;
constexpr std::uint32_t keyQ = 0x0c;
constexpr std::uint32_t keyY = 0x10;
constexpr std::uint32_t keyEight = 0x1c;
constexpr std::uint32_t keyLeftBracket = 0x21;
constexpr std::uint32_t keyGrave = 0x32;

class XkbKeyboardLayoutTest : public testing::Test {
protected:
    /// Changes the keyboard, and waits until the program knows.
    void setLayout(const QStringList &arguments)
    {
        const int before = changes_;
        server_.run(u"setxkbmap"_s, arguments);
        ASSERT_TRUE(QTest::qWaitFor([&] { return changes_ > before; }, 30'000));
    }

    [[nodiscard]] QString character(std::uint32_t keyCode) const { return layout_->character(keyCode).value_or(u""_s); }

    test::XServer server_;

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};

protected:
    QGuiApplication program_{argumentCount_, arguments_};
    int changes_ = 0;
    std::unique_ptr<XkbKeyboardLayout> layout_ = XkbKeyboardLayout::create();

    void SetUp() override
    {
        layout_->onChange([this] { ++changes_; });
    }
};

TEST_F(XkbKeyboardLayoutTest, TellsWhatKeysTypeWithoutModifiers)
{
    EXPECT_EQ(layout_->character(keyA), u"a"_s);
    EXPECT_EQ(layout_->character(keyY), u"y"_s);
    EXPECT_EQ(layout_->character(keyEight), u"8"_s);
    EXPECT_EQ(layout_->character(keyLeftBracket), u"["_s);
}

TEST_F(XkbKeyboardLayoutTest, KeysThatActTypeNothing)
{
    for (const std::uint32_t keyCode :
         {0x24U, 0x30U, 0x33U, 0x35U, 0x38U, 0x39U, 0x3bU, 0x3fU, 0x7aU, 0x5aU, 0x75U, 0x7bU, 0x34U})
        EXPECT_EQ(layout_->character(keyCode), std::nullopt) << keyCode;
    EXPECT_EQ(layout_->character(0xffffffff), std::nullopt);
}

TEST_F(XkbKeyboardLayoutTest, FollowsANewLayoutAtOnce)
{
    setLayout({u"de"_s});
    EXPECT_EQ(layout_->character(keyY), u"z"_s);
    EXPECT_EQ(layout_->character(keyLeftBracket), u"ü"_s);
    setLayout({u"fr"_s});
    EXPECT_EQ(layout_->character(keyQ), u"a"_s);
    EXPECT_EQ(layout_->character(keyEight), u"_"_s);
    setLayout({u"us"_s});
    EXPECT_EQ(layout_->character(keyY), u"y"_s);
}

TEST_F(XkbKeyboardLayoutTest, DeadKeysTypeNothing)
{
    setLayout({u"de"_s});
    EXPECT_EQ(layout_->character(keyGrave), std::nullopt);
    setLayout({u"de"_s, u"nodeadkeys"_s});
    EXPECT_EQ(layout_->character(keyGrave), u"^"_s);
}

TEST_F(XkbKeyboardLayoutTest, OfSeveralItIsOneThatTypesASCII)
{
    setLayout({u"ru,de,us"_s});
    EXPECT_EQ(layout_->character(keyY), u"z"_s);
    setLayout({u"us,ru"_s});
    EXPECT_EQ(layout_->character(keyY), u"y"_s);
}

/// Chooses one of the keyboard's layouts, as a desktop's panel does.
void choose(std::uint8_t layout)
{
    const auto *x11 = dynamic_cast<QGuiApplication *>(QCoreApplication::instance())
                          ->nativeInterface<QNativeInterface::QX11Application>();
    xcb_xkb_latch_lock_state(x11->connection(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, layout, 0, 0, 0);
    xcb_flush(x11->connection());
}

TEST_F(XkbKeyboardLayoutTest, TheChosenOneCountsIfItTypesASCII)
{
    setLayout({u"us,de,ru"_s});
    EXPECT_EQ(layout_->character(keyY), u"y"_s);
    choose(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return character(keyY) == "z"_L1; }, 30'000));
    choose(2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return character(keyY) == "y"_L1; }, 30'000))
        << "Russian doesn't, so it is the first again.";
}

TEST_F(XkbKeyboardLayoutTest, WithoutOneThatTypesASCIIItIsTheChosenOne)
{
    setLayout({u"ru"_s});
    EXPECT_EQ(layout_->character(keyA), u"ф"_s);
}

TEST_F(XkbKeyboardLayoutTest, KeysAloneChangeNothing)
{
    server_.type(u"key"_s, u"Caps_Lock"_s);
    server_.type(u"key"_s, u"shift+ctrl+a"_s);
    choose(0);
    // The server tells of all that before it answers.
    setLayout({u"de"_s});
    EXPECT_EQ(changes_, 1);
    EXPECT_EQ(layout_->character(keyA), u"a"_s);
}

TEST_F(XkbKeyboardLayoutTest, NobodyNeedsToListen)
{
    layout_->onChange({});
    server_.run(u"setxkbmap"_s, {u"de"_s});
    EXPECT_TRUE(QTest::qWaitFor([&] { return character(keyY) == "z"_L1; }, 30'000));
}

TEST(XkbKeyboardLayout, IsMissingWithoutAnXServer)
{
    EXPECT_EQ(XkbKeyboardLayout::create(), nullptr);
}

/// A user of an X server, which has an American keyboard at first.
class XkbSystem {
public:
    KeyboardLayout &layout() { return *layout_; }
    [[nodiscard]] test::TestedLayout chosen() const { return chosen_; }

    void choose(test::TestedLayout layout, const bool &isTold)
    {
        chosen_ = layout;
        server_.run(u"setxkbmap"_s, {layout == test::TestedLayout::german ? u"de"_s : u"us"_s});
        EXPECT_TRUE(QTest::qWaitFor([&] { return isTold; }, 30'000));
    }

private:
    test::XServer server_;
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QGuiApplication program_{argumentCount_, arguments_};
    std::unique_ptr<XkbKeyboardLayout> layout_ = XkbKeyboardLayout::create();
    test::TestedLayout chosen_ = test::TestedLayout::unitedStates;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(X11, KeyboardLayoutContract, XkbSystem);

} // namespace test
} // namespace vantrel
