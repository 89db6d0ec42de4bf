#include "Vantrel/Settings/ShortcutTexts.h"

#include "KeyboardShortcuts/ModifierFlags.h"
#include "Tests/Fakes/FakeDesktopHotKeys.h"
#include "Tests/Fakes/FakeKeyboardLayout.h"
#include "Tests/Fakes/FakeUserDefaults.h"
#include "Tests/KeyboardShortcuts/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr Shortcut controlOptionP{35, CarbonModifier::control | CarbonModifier::option};

class ShortcutTextsTest : public testing::Test {
protected:
    using Availability = DesktopHotKeys::Availability;

    [[nodiscard]] test::FakeDesktopHotKeys &hotKeys()
    {
        return static_cast<test::FakeDesktopHotKeys &>(*keyboard_.hotKeys);
    }

    test::FakeUserDefaults defaults_;
    DesktopKeyboard keyboard_{std::make_unique<test::FakeDesktopHotKeys>(),
                              std::make_unique<test::FakeKeyboardLayout>()};
    KeyboardShortcuts shortcuts_{{defaults_, *keyboard_.hotKeys, *keyboard_.layout}};
    SystemConventions conventions_;
    ShortcutTexts texts_{shortcuts_, keyboard_, conventions_};
};

TEST_F(ShortcutTextsTest, KeysAreReadAsTheSystemWritesThem)
{
    EXPECT_EQ(texts_.text(controlOptionP), u"Ctrl+Alt+P"_s);
    conventions_.showsKeySigns = true;
    EXPECT_EQ(texts_.text(controlOptionP), u"⌃⌥P"_s);
    conventions_.qtKeyNames = QtKeyNames::macintosh;
    EXPECT_EQ(texts_.text(controlOptionP), u"⌃⌥P"_s);
}

TEST_F(ShortcutTextsTest, KeysThatTheDesktopGaveInsteadAreShown)
{
    const ShortcutName name{u"profile.one"_s};
    shortcuts_.onKeyUp(name, [] {});
    shortcuts_.setShortcut(controlOptionP, name);
    const auto id = shortcuts_.hotKeyId(controlOptionP);
    ASSERT_TRUE(id.has_value());
    EXPECT_EQ(texts_.text(controlOptionP), u"Ctrl+Alt+P"_s);
    hotKeys().grant(*id, u"Press <Super>p"_s);
    EXPECT_EQ(texts_.text(controlOptionP), u"Press <Super>p"_s);
    hotKeys().grant(*id, QString());
    EXPECT_EQ(texts_.text(controlOptionP), u"Ctrl+Alt+P (not given)"_s);
    shortcuts_.disable({name});
    EXPECT_EQ(shortcuts_.hotKeyId(controlOptionP), std::nullopt);
    EXPECT_EQ(texts_.text(controlOptionP), u"Ctrl+Alt+P"_s);
}

TEST_F(ShortcutTextsTest, NothingIsSaidAsLongAsTheyMayWork)
{
    for (const Availability availability : {Availability::available, Availability::unknown}) {
        hotKeys().setAvailability(availability);
        EXPECT_TRUE(texts_.areAvailable());
        EXPECT_EQ(texts_.note(), std::nullopt);
    }
}

TEST_F(ShortcutTextsTest, WithoutThemTheCommandIsOffered)
{
    hotKeys().setAvailability(Availability::notAvailable);
    EXPECT_FALSE(texts_.areAvailable());
    ASSERT_TRUE(texts_.note().has_value());
    EXPECT_TRUE(texts_.note()->text.contains(u"vantrel open"_s));
    EXPECT_TRUE(texts_.note()->text.contains(u"Copy Command"_s));
}

TEST_F(ShortcutTextsTest, ThoseThatWereRefusedCanBeRecordedAgain)
{
    hotKeys().setAvailability(Availability::refused);
    EXPECT_TRUE(texts_.areAvailable());
    ASSERT_TRUE(texts_.note().has_value());
    EXPECT_TRUE(texts_.note()->text.contains(u"vantrel open"_s));
}

} // namespace
} // namespace vantrel
