#include "KeyboardShortcuts/Carbon/CarbonKeyboardLayout.h"

#include "Tests/Contract/KeyboardLayoutContract.h"

#include <QApplication>
#include <QTest>

#include <Carbon/Carbon.h>
#import <Foundation/Foundation.h>

#include <array>
#include <memory>
#include <type_traits>

namespace vantrel {
namespace {

using test::TestedLayout;

constexpr int patience = 30'000;

struct Release {
    void operator()(CFTypeRef object) const { CFRelease(object); }
};
using OwnedInputSource = std::unique_ptr<std::remove_pointer_t<TISInputSourceRef>, Release>;

/// One of the layouts that come with macOS. Null when it is missing.
OwnedInputSource sourceOf(TestedLayout layout)
{
    NSString *identifier = layout == TestedLayout::german ? @"com.apple.keylayout.German" : @"com.apple.keylayout.US";
    NSDictionary *properties = @{(__bridge NSString *)kTISPropertyInputSourceID : identifier};
    constexpr Boolean alsoDisabled = 1;
    CFArrayRef list = TISCreateInputSourceList((__bridge CFDictionaryRef)properties, alsoDisabled);
    if (list == nullptr)
        return nullptr;
    OwnedInputSource source;
    if (CFArrayGetCount(list) > 0) {
        const auto *found =
            static_cast<const std::remove_pointer_t<TISInputSourceRef> *>(CFArrayGetValueAtIndex(list, 0));
        source.reset(const_cast<TISInputSourceRef>(found));
        CFRetain(source.get());
    }
    CFRelease(list);
    return source;
}

/// A layout in the input menu, in which it is no longer than before.
class MenuLayout {
public:
    explicit MenuLayout(TestedLayout layout) : source_(sourceOf(layout))
    {
        if (!source_) {
            ADD_FAILURE() << "The system has no such layout.";
            return;
        }
        const auto *enabled =
            static_cast<CFBooleanRef>(TISGetInputSourceProperty(source_.get(), kTISPropertyInputSourceIsEnabled));
        wasEnabled_ = enabled != nullptr && CFBooleanGetValue(enabled) != 0;
        if (!wasEnabled_)
            EXPECT_EQ(TISEnableInputSource(source_.get()), noErr);
    }
    ~MenuLayout()
    {
        if (source_ && !wasEnabled_)
            TISDisableInputSource(source_.get());
    }
    Q_DISABLE_COPY_MOVE(MenuLayout)

    void choose() const
    {
        if (source_)
            EXPECT_EQ(TISSelectInputSource(source_.get()), noErr);
    }

    [[nodiscard]] bool isChosen() const
    {
        const OwnedInputSource current(TISCopyCurrentKeyboardInputSource());
        return current && source_ && CFEqual(current.get(), source_.get()) != 0;
    }

private:
    OwnedInputSource source_;
    bool wasEnabled_ = false;
};

/// A user who chooses layouts in the input menu, and at the end the one there was.
class CarbonLayoutSystem {
public:
    CarbonLayoutSystem()
    {
        if (unitedStates_.isChosen())
            return;
        bool isTold = false;
        layout_.onChange([&isTold] { isTold = true; });
        choose(TestedLayout::unitedStates, isTold);
        layout_.onChange({});
    }
    ~CarbonLayoutSystem()
    {
        if (former_)
            TISSelectInputSource(former_.get());
    }
    Q_DISABLE_COPY_MOVE(CarbonLayoutSystem)

    KeyboardLayout &layout() { return layout_; }
    [[nodiscard]] TestedLayout chosen() const { return chosen_; }

    void choose(TestedLayout layout, const bool &isTold)
    {
        chosen_ = layout;
        (layout == TestedLayout::german ? german_ : unitedStates_).choose();
        EXPECT_TRUE(QTest::qWaitFor([&] { return isTold; }, patience));
    }

private:
    int argumentCount_ = 1;
    std::array<char, 8> name_{"vantrel"};
    std::array<char *, 2> arguments_{name_.data(), nullptr};
    QApplication program_{argumentCount_, arguments_.data()};
    MenuLayout unitedStates_{TestedLayout::unitedStates};
    MenuLayout german_{TestedLayout::german};
    OwnedInputSource former_{TISCopyCurrentKeyboardInputSource()};
    CarbonKeyboardLayout layout_;
    TestedLayout chosen_ = TestedLayout::unitedStates;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Carbon, KeyboardLayoutContract, CarbonLayoutSystem);

} // namespace test
} // namespace vantrel
