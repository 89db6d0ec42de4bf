#include "KeyboardShortcuts/Portal/PortalHotKeys.h"

#include "KeyboardShortcuts/Portal/PortalTrigger.h"

#include <cerrno>
#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The desktop keeps what the user has set for an id, also when the program runs the next time: it is made of what
/// stays the same then.
QString portalID(std::uint32_t keyCode, std::uint32_t modifiers)
{
    return u"key-%1-%2"_s.arg(modifiers, 0, 16).arg(keyCode, 0, 16);
}

} // namespace

PortalHotKeys::PortalHotKeys(const QDBusConnection &connection, ActivationSource &source, HotKeyDescription description)
    : source_(source),
      description_(std::move(description)),
      session_(connection, u"app.kestrune.Vantrel"_s,
               {.changed =
                    [this] {
                        if (const auto changed = changed_)
                            changed();
                    },
                .activated = [this](const QString &id, bool isActive,
                                    const QVariantMap &options) { activated(id, isActive, options); },
                .lost = [this] { active_.clear(); }})
{
}

PortalHotKeys::~PortalHotKeys() = default;

std::expected<void, std::int32_t> PortalHotKeys::add(std::uint32_t id, std::uint32_t keyCode, std::uint32_t modifiers)
{
    if (!portalTrigger(keymap_, keyCode, modifiers))
        return std::unexpected(EINVAL);
    added_.insert_or_assign(id, Combination(keyCode, modifiers));
    updateLater();
    return {};
}

void PortalHotKeys::remove(std::uint32_t id)
{
    if (added_.erase(id) > 0)
        updateLater();
}

void PortalHotKeys::listen(Listening listening)
{
    listening_ = listening;
    updateLater();
}

std::optional<QString> PortalHotKeys::grantedTrigger(std::uint32_t id) const
{
    const auto found = added_.find(id);
    return found == added_.end() ? std::nullopt : session_.trigger(portalID(found->second.first, found->second.second));
}

void PortalHotKeys::updateLater()
{
    if (std::exchange(isUpdateDue_, true))
        return;
    QMetaObject::invokeMethod(&context_, [this] { update(); }, Qt::QueuedConnection);
}

void PortalHotKeys::update()
{
    isUpdateDue_ = false;
    // A menu is only open for a while, and asking for the same keys again might ask the user again.
    if (listening_ == Listening::rawKeys)
        return;
    asked_.clear();
    if (listening_ == Listening::hotKeys) {
        for (const auto &[id, combination] : added_)
            asked_.emplace(portalID(combination.first, combination.second), combination);
    }
    PortalShortcuts shortcuts;
    for (const auto &[id, combination] : asked_) {
        const auto [keyCode, modifiers] = combination;
        shortcuts.append({id,
                          {{u"description"_s, description_(keyCode, modifiers)},
                           {u"preferred_trigger"_s, portalTrigger(keymap_, keyCode, modifiers).value_or(QString())}}});
    }
    session_.bind(shortcuts);
}

void PortalHotKeys::activated(const QString &id, bool isActive, const QVariantMap &options)
{
    if (const QString token = options.value(u"activation_token"_s).toString(); !token.isEmpty())
        source_.noteToken(token);
    const auto asked = asked_.find(id);
    if (isActive && asked != asked_.end()) {
        const Combination combination = asked->second;
        // A portal may repeat that a key is held.
        if (active_.emplace(id, combination).second)
            report(combination, true);
    } else if (const auto held = active_.find(id); !isActive && held != active_.end()) {
        const Combination combination = held->second;
        active_.erase(held);
        report(combination, false);
    }
}

void PortalHotKeys::report(const Combination &combination, bool isPressed)
{
    if (listening_ == Listening::rawKeys) {
        if (const auto rawKey = handlers_.rawKey)
            rawKey(combination.first, combination.second, isPressed);
    }
    if (listening_ != Listening::hotKeys)
        return;
    std::vector<std::uint32_t> ids;
    for (const auto &[id, added] : added_) {
        if (added == combination)
            ids.push_back(id);
    }
    const auto hotKey = handlers_.hotKey;
    for (const std::uint32_t id : ids) {
        if (hotKey)
            hotKey(id, isPressed);
    }
}

} // namespace vantrel
