#include "KeyboardShortcuts/Carbon/MenuTrackingKeys.h"

#import <AppKit/AppKit.h>
#include <Carbon/Carbon.h>

#include <optional>
#include <utility>

namespace vantrel {
namespace {

std::optional<UInt32> number(EventRef event, EventParamName name)
{
    UInt32 value = 0;
    const OSStatus status = GetEventParameter(event, name, typeUInt32, nullptr, sizeof(value), nullptr, &value);
    return status == noErr ? std::optional(value) : std::nullopt;
}

/// None for what is neither a press nor a release, as when a key that is held repeats itself.
std::optional<MenuTrackingKeys::Key> keyOf(NSEvent *event)
{
    // Carbon's own form of the event: AppKit declares it as untyped and constant.
    auto *const carbonEvent = static_cast<EventRef>(const_cast<void *>(event.eventRef));
    if (carbonEvent == nullptr)
        return std::nullopt;
    const UInt32 kind = GetEventKind(carbonEvent);
    if (kind != kEventRawKeyDown && kind != kEventRawKeyUp)
        return std::nullopt;
    const auto code = number(carbonEvent, kEventParamKeyCode);
    const auto modifiers = number(carbonEvent, kEventParamKeyModifiers);
    if (!code || !modifiers)
        return std::nullopt;
    return MenuTrackingKeys::Key{.code = *code, .modifiers = *modifiers, .isPressed = kind == kEventRawKeyDown};
}

/// The next key event in the queue, which stays there unless it is taken out. Doesn't wait.
NSEvent *nextKeyEvent(bool isTakenOut)
{
    return [NSApp nextEventMatchingMask:NSEventMaskKeyDown | NSEventMaskKeyUp
                              untilDate:nil
                                 inMode:NSEventTrackingRunLoopMode
                                dequeue:isTakenOut];
}

} // namespace

/// Calls `takeKeys` in each turn of a menu's loop.
struct MenuTrackingKeys::Observer {
    explicit Observer(MenuTrackingKeys &keys) : reference(make(keys))
    {
        CFRunLoopAddObserver(CFRunLoopGetMain(), reference, (__bridge CFRunLoopMode)NSEventTrackingRunLoopMode);
    }

    ~Observer()
    {
        CFRunLoopObserverInvalidate(reference);
        CFRelease(reference);
    }

    Q_DISABLE_COPY_MOVE(Observer)

    /// Calls a plain function: a block would be freed while it runs when a key's handler calls `stop`.
    static CFRunLoopObserverRef make(MenuTrackingKeys &keys)
    {
        // Events come into the queue while the loop waits; the menu takes them out when this turn of the loop has
        // ended.
        constexpr CFOptionFlags activities = kCFRunLoopBeforeSources | kCFRunLoopBeforeWaiting | kCFRunLoopExit;
        CFRunLoopObserverContext context{};
        context.info = &keys;
        return CFRunLoopObserverCreate(
            kCFAllocatorDefault, activities, true, 0,
            [](CFRunLoopObserverRef, CFRunLoopActivity, void *info) {
                static_cast<MenuTrackingKeys *>(info)->takeKeys();
            },
            &context);
    }

    CFRunLoopObserverRef reference;
};

MenuTrackingKeys::MenuTrackingKeys(Handler handler) : handler_(std::move(handler)) {}

MenuTrackingKeys::~MenuTrackingKeys() = default;

void MenuTrackingKeys::start()
{
    if (observer_)
        return;
    observer_ = std::make_unique<Observer>(*this);
}

void MenuTrackingKeys::stop()
{
    observer_.reset();
}

void MenuTrackingKeys::takeKeys()
{
    // Only what is used leaves the queue, and only from its head: putting events back would change their order.
    while (observer_) {
        @autoreleasepool {
            NSEvent *const event = nextKeyEvent(false);
            const auto key = event == nil ? std::nullopt : keyOf(event);
            if (!key || !handler_(*key))
                return;
            nextKeyEvent(true);
        }
    }
}

} // namespace vantrel
