#include "KeyboardShortcuts/Carbon/CarbonHotKeys.h"

#include "KeyboardShortcuts/Carbon/MenuTrackingKeys.h"

#include <Carbon/Carbon.h>

#include <array>
#include <map>
#include <type_traits>
#include <utility>

namespace vantrel {
namespace {

/// Tells this program's hotkeys from those of libraries in it: 'SSKS'.
constexpr OSType signature = 0x53534B53;

constexpr std::array hotKeyEvents{
    EventTypeSpec{kEventClassKeyboard, kEventHotKeyPressed},
    EventTypeSpec{kEventClassKeyboard, kEventHotKeyReleased},
};

struct GiveBack {
    void operator()(EventHotKeyRef hotKey) const { UnregisterEventHotKey(hotKey); }
    void operator()(EventHandlerRef handler) const { RemoveEventHandler(handler); }
};
using OwnedHotKey = std::unique_ptr<std::remove_pointer_t<EventHotKeyRef>, GiveBack>;
using OwnedHandler = std::unique_ptr<std::remove_pointer_t<EventHandlerRef>, GiveBack>;

} // namespace

struct CarbonHotKeys::System {
    static OSStatus take(EventHandlerCallRef next, EventRef event, void *system);

    [[nodiscard]] bool takeRawKey(const MenuTrackingKeys::Key &key) const;
    void installHandler();
    void setHearingHotKeys(bool isHearing);

    Handlers handlers = {};
    std::map<std::uint32_t, OwnedHotKey> added = {};
    bool isHearingHotKeys = false;
    MenuTrackingKeys menuKeys{[this](const MenuTrackingKeys::Key &key) { return takeRawKey(key); }};
    /// Made for the first listener, and then kept: only the types of events that it gets change. Null when the system
    /// has refused it.
    OwnedHandler handler = nullptr;
};

OSStatus CarbonHotKeys::System::take(EventHandlerCallRef /*next*/, EventRef event, void *system)
{
    if (event == nullptr || GetEventClass(event) != kEventClassKeyboard)
        return eventNotHandledErr;
    const UInt32 kind = GetEventKind(event);
    if (kind != kEventHotKeyPressed && kind != kEventHotKeyReleased)
        return eventNotHandledErr;
    EventHotKeyID id{};
    const OSStatus status =
        GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID, nullptr, sizeof(id), nullptr, &id);
    if (status != noErr)
        return status;
    // A copy: what is called may set others.
    const auto hotKey = static_cast<System *>(system)->handlers.hotKey;
    const bool isUsed = id.signature == signature && hotKey && hotKey(id.id, kind == kEventHotKeyPressed);
    return isUsed ? OSStatus{noErr} : OSStatus{eventNotHandledErr};
}

bool CarbonHotKeys::System::takeRawKey(const MenuTrackingKeys::Key &key) const
{
    const auto rawKey = handlers.rawKey;
    return rawKey && rawKey(key.code, key.modifiers, key.isPressed);
}

void CarbonHotKeys::System::installHandler()
{
    if (handler)
        return;
    EventHandlerRef installed = nullptr;
    if (InstallEventHandler(GetEventDispatcherTarget(), &System::take, 0, nullptr, this, &installed) == noErr)
        handler.reset(installed);
}

void CarbonHotKeys::System::setHearingHotKeys(bool isHearing)
{
    if (isHearing == isHearingHotKeys)
        return;
    if (isHearing)
        installHandler();
    if (!handler)
        return;
    const OSStatus status = isHearing
                                ? AddEventTypesToHandler(handler.get(), hotKeyEvents.size(), hotKeyEvents.data())
                                : RemoveEventTypesFromHandler(handler.get(), hotKeyEvents.size(), hotKeyEvents.data());
    if (status == noErr)
        isHearingHotKeys = isHearing;
}

CarbonHotKeys::CarbonHotKeys() : system_(std::make_unique<System>()) {}

CarbonHotKeys::~CarbonHotKeys() = default;

void CarbonHotKeys::setHandlers(Handlers handlers)
{
    system_->handlers = std::move(handlers);
}

std::expected<void, std::int32_t> CarbonHotKeys::add(std::uint32_t id, std::uint32_t keyCode, std::uint32_t modifiers)
{
    remove(id);
    EventHotKeyRef hotKey = nullptr;
    const OSStatus status = RegisterEventHotKey(keyCode, modifiers, EventHotKeyID{signature, id},
                                                GetEventDispatcherTarget(), kEventHotKeyNoOptions, &hotKey);
    if (status != noErr)
        return std::unexpected(status);
    if (hotKey == nullptr)
        return std::unexpected(std::int32_t{eventInternalErr});
    system_->added.emplace(id, OwnedHotKey(hotKey));
    return {};
}

void CarbonHotKeys::remove(std::uint32_t id)
{
    system_->added.erase(id);
}

void CarbonHotKeys::listen(Listening listening)
{
    system_->setHearingHotKeys(listening == Listening::hotKeys);
    if (listening == Listening::rawKeys)
        system_->menuKeys.start();
    else
        system_->menuKeys.stop();
}

} // namespace vantrel
