#include "KeyboardShortcuts/Carbon/CarbonHotKeys.h"
#include "KeyboardShortcuts/ModifierFlags.h"
#include "Tests/Contract/HotKeyPortContract.h"

#include <QApplication>
#include <QProcess>
#include <QTest>
#include <QWidget>

#import <AppKit/AppKit.h>
#include <Carbon/Carbon.h>
#include <CoreGraphics/CGEvent.h>

#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr std::uint32_t keyF19 = 0x50;
constexpr std::uint32_t keyRightShift = 0x3c;
constexpr int patience = 30'000;

/// A key that the tests alone use: the system tells of it after all that was typed before. It is a hotkey with all
/// modifiers that may be down then, for with each it is another combination.
class Marker {
public:
    Marker()
    {
        constexpr EventTypeSpec pressed{kEventClassKeyboard, kEventHotKeyPressed};
        EXPECT_EQ(InstallEventHandler(GetEventDispatcherTarget(), &Marker::take, 1, &pressed, this, &handler_), noErr);
        for (const UInt32 shift : {0U, CarbonModifier::shift}) {
            for (const UInt32 option : {0U, CarbonModifier::option}) {
                for (const UInt32 control : {0U, CarbonModifier::control})
                    add(shift | option | control);
            }
        }
    }

    ~Marker()
    {
        for (EventHotKeyRef hotKey : hotKeys_)
            UnregisterEventHotKey(hotKey);
        RemoveEventHandler(handler_);
    }

    Q_DISABLE_COPY_MOVE(Marker)

    [[nodiscard]] int count() const { return count_; }

private:
    static constexpr OSType signature = 0x4D61726B; // "Mark"

    void add(UInt32 modifiers)
    {
        EventHotKeyRef hotKey = nullptr;
        const EventHotKeyID id{signature, static_cast<UInt32>(hotKeys_.size())};
        EXPECT_EQ(
            RegisterEventHotKey(keyF19, modifiers, id, GetEventDispatcherTarget(), kEventHotKeyNoOptions, &hotKey),
            noErr);
        hotKeys_.push_back(hotKey);
    }

    static OSStatus take(EventHandlerCallRef /*next*/, EventRef event, void *marker)
    {
        EventHotKeyID id{};
        GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID, nullptr, sizeof(id), nullptr, &id);
        if (id.signature != signature)
            return eventNotHandledErr;
        ++static_cast<Marker *>(marker)->count_;
        return noErr;
    }

    EventHandlerRef handler_ = nullptr;
    std::vector<EventHotKeyRef> hotKeys_;
    int count_ = 0;
};

class CarbonHotKeySystem {
public:
    static constexpr bool sharesCombinations = true;

    CarbonHotKeySystem()
    {
        EXPECT_TRUE(CGPreflightPostEventAccess())
            << "Let the program that starts the tests control this computer: System Settings, Privacy & Security, "
               "Accessibility.";
    }

    HotKeyPort &port() { return port_; }

    void press(std::uint32_t keyCode)
    {
        post(keyCode, true, 0);
        lastPressed_ = keyCode;
    }

    void release(std::uint32_t keyCode) { post(keyCode, false, 0); }

    void repeat()
    {
        for (int count = 0; count < 4; ++count)
            post(lastPressed_, true, 1);
    }

    void settle()
    {
        if (hasMenu_)
            settleMenu();
        else
            settleHotKeys();
    }

    void holdElsewhere(std::uint32_t keyCode, std::uint32_t modifiers)
    {
        // Built beside the tests.
        other_.start(QCoreApplication::applicationDirPath() + "/HotKeyHolder"_L1,
                     {QString::number(keyCode), QString::number(modifiers)});
        EXPECT_TRUE(other_.waitForReadyRead(patience)) << "The other program has not taken the combination.";
    }

    /// The keyboard comes to a window of the program, whose events are then taken from the queue as an open menu does.
    void openMenu()
    {
        window_.show();
        [NSApp activate];
        EXPECT_TRUE(QTest::qWaitFor([&] { return window_.isActiveWindow(); }, patience));
        hasMenu_ = true;
    }

    ~CarbonHotKeySystem()
    {
        other_.kill();
        other_.waitForFinished();
    }

    Q_DISABLE_COPY_MOVE(CarbonHotKeySystem)

private:
    static void post(std::uint32_t keyCode, bool isDown, int isRepeat)
    {
        const CGEventSourceRef source = CGEventSourceCreate(kCGEventSourceStateHIDSystemState);
        const CGEventRef event = CGEventCreateKeyboardEvent(source, static_cast<CGKeyCode>(keyCode), isDown);
        CGEventSetIntegerValueField(event, kCGKeyboardEventAutorepeat, isRepeat);
        CGEventPost(kCGHIDEventTap, event);
        CFRelease(event);
        CFRelease(source);
    }

    void settleHotKeys()
    {
        const int before = marker_.count();
        post(keyF19, true, 0);
        post(keyF19, false, 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return marker_.count() > before; }, patience));
    }

    /// Modifier keys are no keys that the port tells of.
    static void settleMenu()
    {
        post(keyRightShift, true, 0);
        post(keyRightShift, false, 0);
        // For both, however many others come meanwhile.
        NSDate *const end = [NSDate dateWithTimeIntervalSinceNow:patience / 1000.0];
        int seen = 0;
        while (seen < 2) {
            NSEvent *const event = [NSApp nextEventMatchingMask:NSEventMaskAny
                                                      untilDate:end
                                                         inMode:NSEventTrackingRunLoopMode
                                                        dequeue:YES];
            ASSERT_NE(event, nil) << "The keyboard's events don't come to this program.";
            if (event.type == NSEventTypeFlagsChanged && event.keyCode == keyRightShift)
                ++seen;
        }
    }

    int argumentCount_ = 1;
    std::array<char, 8> name_{"vantrel"};
    std::array<char *, 2> arguments_{name_.data(), nullptr};
    QApplication program_{argumentCount_, arguments_.data()};
    CarbonHotKeys port_;
    Marker marker_;
    QProcess other_;
    QWidget window_;
    std::uint32_t lastPressed_ = 0;
    bool hasMenu_ = false;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Carbon, HotKeyPortContract, CarbonHotKeySystem);

} // namespace test
} // namespace vantrel
