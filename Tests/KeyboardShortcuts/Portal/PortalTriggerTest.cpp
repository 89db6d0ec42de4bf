#include "KeyboardShortcuts/Portal/PortalTrigger.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(PortalTrigger, NamesTheModifiersAndTheKey)
{
    const XkbKeymap keymap = XkbKeymap::makeDefault();
    EXPECT_EQ(portalTrigger(keymap, 0x00, 0), u"a"_s);
    EXPECT_EQ(portalTrigger(keymap, 0x00, 0x1000), u"CTRL+a"_s);
    EXPECT_EQ(portalTrigger(keymap, 0x00, 0x800), u"ALT+a"_s);
    EXPECT_EQ(portalTrigger(keymap, 0x00, 0x200), u"SHIFT+a"_s);
    EXPECT_EQ(portalTrigger(keymap, 0x00, 0x100), u"LOGO+a"_s);
    EXPECT_EQ(portalTrigger(keymap, 0x24, 0x1b00), u"CTRL+ALT+SHIFT+LOGO+Return"_s);
    EXPECT_EQ(portalTrigger(keymap, 0x21, 0x1000), u"CTRL+bracketleft"_s);
    EXPECT_EQ(portalTrigger(keymap, 0x7e, 0x1000), u"CTRL+Up"_s);
    EXPECT_EQ(portalTrigger(keymap, 0x7a, 0), u"F1"_s);
}

TEST(PortalTrigger, IsNoneForKeysThatTheKeyboardDoesNotHave)
{
    EXPECT_EQ(portalTrigger(XkbKeymap::makeDefault(), 0x34, 0x1000), std::nullopt);
    EXPECT_EQ(portalTrigger(XkbKeymap::makeDefault(), 0x3f, 0x1000), std::nullopt);
    EXPECT_EQ(portalTrigger(XkbKeymap(), 0x00, 0x1000), std::nullopt);
}

} // namespace
} // namespace vantrel
