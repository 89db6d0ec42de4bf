#include "KeyboardShortcuts/CarbonKeyboardShortcuts.h"

#include "KeyboardShortcuts/ModifierFlags.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

template <typename Number>
std::uint32_t inUnsigned32(Number number)
{
    if (!std::in_range<std::uint32_t>(number))
        qFatal("A keyboard shortcut can't have the number %s.", qPrintable(QString::number(number)));
    return static_cast<std::uint32_t>(number);
}

} // namespace

CarbonKeyboardShortcuts::CarbonKeyboardShortcuts(HotKeyPort &port, const KeyboardLayout &layout, Print print)
    : port_(port),
      layout_(layout),
      print_(std::move(print))
{
}

CarbonKeyboardShortcuts::~CarbonKeyboardShortcuts()
{
    if (!hasEventHandler_)
        return;
    softUnregisterAll();
    port_.listen(HotKeyPort::Listening::nothing);
    port_.setHandlers({});
}

void CarbonKeyboardShortcuts::registerShortcut(const Shortcut &shortcut, Handler onKeyDown, Handler onKeyUp)
{
    ++hotKeyIdCounter_;
    HotKey hotKey{.shortcut = shortcut,
                  .carbonHotKeyId = inUnsigned32(hotKeyIdCounter_),
                  .onKeyDown = std::move(onKeyDown),
                  .onKeyUp = std::move(onKeyUp)};
    if (!registerWithSystem(hotKey))
        return;
    hotKeys_.emplace(hotKey.carbonHotKeyId, std::move(hotKey));
    installEventHandler();
    updateEventHandler();
}

void CarbonKeyboardShortcuts::unregisterShortcut(const Shortcut &shortcut)
{
    std::erase_if(hotKeys_, [&](const auto &entry) {
        if (entry.second.shortcut != shortcut)
            return false;
        if (entry.second.isRegistered)
            port_.remove(entry.first);
        return true;
    });
}

std::optional<std::uint32_t> CarbonKeyboardShortcuts::hotKeyId(const Shortcut &shortcut) const
{
    const auto found = std::ranges::find_if(
        hotKeys_, [&](const auto &entry) { return entry.second.isRegistered && entry.second.shortcut == shortcut; });
    return found == hotKeys_.end() ? std::nullopt : std::optional(found->first);
}

void CarbonKeyboardShortcuts::setListening(HotKeyPort::Listening listening)
{
    listening_ = listening;
    updateEventHandler();
}

void CarbonKeyboardShortcuts::updateEventHandler()
{
    if (!hasEventHandler_)
        return;
    if (listening_ == HotKeyPort::Listening::hotKeys)
        registerAgain();
    else
        softUnregisterAll();
    port_.listen(listening_);
}

bool CarbonKeyboardShortcuts::registerWithSystem(HotKey &hotKey)
{
    const auto added = port_.add(hotKey.carbonHotKeyId, inUnsigned32(hotKey.shortcut.carbonKeyCode),
                                 inUnsigned32(hotKey.shortcut.carbonModifiers));
    if (!added) {
        print_(u"Error registering hotkey %1: %2"_s.arg(hotKey.shortcut.description(layout_),
                                                        QString::number(added.error())));
        return false;
    }
    hotKey.isRegistered = true;
    return true;
}

void CarbonKeyboardShortcuts::installEventHandler()
{
    if (hasEventHandler_)
        return;
    port_.setHandlers({
        .hotKey = [this](std::uint32_t id, bool isPressed) { return takeHotKey(id, isPressed); },
        .rawKey = [this](std::uint32_t keyCode, std::uint32_t modifiers,
                         bool isPressed) { return takeRawKey(keyCode, modifiers, isPressed); },
    });
    hasEventHandler_ = true;
}

void CarbonKeyboardShortcuts::registerAgain()
{
    for (auto entry = hotKeys_.begin(); entry != hotKeys_.end();) {
        const bool isKept = entry->second.isRegistered || registerWithSystem(entry->second);
        entry = isKept ? std::next(entry) : hotKeys_.erase(entry);
    }
}

void CarbonKeyboardShortcuts::softUnregisterAll()
{
    for (auto &[id, hotKey] : hotKeys_) {
        if (std::exchange(hotKey.isRegistered, false))
            port_.remove(id);
    }
}

bool CarbonKeyboardShortcuts::takeHotKey(std::uint32_t id, bool isPressed)
{
    const auto found = hotKeys_.find(id);
    if (found == hotKeys_.end())
        return false;
    // A copy: what is called may drop the hotkey.
    const HotKey hotKey = found->second;
    (isPressed ? hotKey.onKeyDown : hotKey.onKeyUp)(hotKey.shortcut);
    return true;
}

bool CarbonKeyboardShortcuts::takeRawKey(std::uint32_t keyCode, std::uint32_t modifiers, bool isPressed)
{
    const Shortcut pressed{keyCode, normalizedModifiers(modifiers)};
    const auto found =
        std::ranges::find_if(hotKeys_, [&](const auto &entry) { return entry.second.shortcut == pressed; });
    return found != hotKeys_.end() && takeHotKey(found->first, isPressed);
}

} // namespace vantrel
