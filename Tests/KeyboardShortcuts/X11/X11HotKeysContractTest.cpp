#include "KeyboardShortcuts/EvdevKeyCodes.h"
#include "KeyboardShortcuts/X11/XkbKeyboardLayout.h"
#include "Tests/Contract/HotKeyPortContract.h"
#include "Tests/KeyboardShortcuts/X11/AnotherProgram.h"
#include "Tests/KeyboardShortcuts/X11/HotKeysFixture.h"
#include "Vantrel/Interface/PopupMenuStyle.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class X11HotKeySystem {
public:
    HotKeyPort &port() { return *port_; }

    void press(std::uint32_t keyCode) { server_.type(u"keydown"_s, xKey(keyCode)); }
    void release(std::uint32_t keyCode) { server_.type(u"keyup"_s, xKey(keyCode)); }

    void repeat()
    {
        const int before = counter_.presses();
        EXPECT_TRUE(QTest::qWaitFor([&] { return counter_.presses() > before + 3; }, 30'000));
    }

    /// The server tells of a change of the keyboard after all that was typed before.
    void settle()
    {
        layout_ = layout_ == u"us"_s ? u"de"_s : u"us"_s;
        const int before = keyboard_.changes();
        server_.run(u"setxkbmap"_s, {layout_});
        EXPECT_TRUE(QTest::qWaitFor([&] { return keyboard_.changes() > before; }, 30'000));
    }

    void holdElsewhere(std::uint32_t keyCode, std::uint32_t modifiers)
    {
        const X11Modifiers masks{.alt = XCB_MOD_MASK_1, .super = XCB_MOD_MASK_4, .locks = 0};
        EXPECT_TRUE(other_.grab(static_cast<std::uint8_t>(xKey(keyCode).toUInt()), masks.fromCarbon(modifiers)));
    }

    void openMenu()
    {
        menu_.addAction(u"Row"_s);
        menu_.setStyle(&style_);
        menu_.popup({20, 20});
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&menu_));
    }

private:
    [[nodiscard]] static QString xKey(std::uint32_t keyCode)
    {
        return QString::number(evdevKeyCode(keyCode).value_or(0) + firstXKeyCode);
    }

    /// Counts changes of the keyboard.
    class KeyboardChanges {
    public:
        KeyboardChanges()
        {
            layout_->onChange([this] { ++changes_; });
        }
        [[nodiscard]] int changes() const { return changes_; }

    private:
        std::unique_ptr<XkbKeyboardLayout> layout_ = XkbKeyboardLayout::create();
        int changes_ = 0;
    };

    test::XServer server_;
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QApplication program_{argumentCount_, arguments_};
    ActivationSource source_;
    std::unique_ptr<X11HotKeys> port_ = X11HotKeys::create(source_);
    test::KeyEventCounter counter_;
    KeyboardChanges keyboard_;
    QString layout_ = u"us"_s;
    test::AnotherProgram other_;
    PopupMenuStyle style_;
    QMenu menu_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(X11, HotKeyPortContract, X11HotKeySystem);

} // namespace test
} // namespace vantrel
