#pragma once

#include "KeyboardShortcuts/HotKeyPort.h"
#include "KeyboardShortcuts/ModifierFlags.h"

#include <QStringList>

#include <map>
#include <optional>
#include <set>
#include <utility>

namespace vantrel::test {

/// A keyboard that a test plays, and the system's hotkeys on it. While the port listens to raw keys, the program has
/// the keyboard.
class FakeHotKeyPort final : public HotKeyPort {
public:
    void setHandlers(Handlers handlers) override { handlers_ = std::move(handlers); }

    [[nodiscard]] std::expected<void, std::int32_t> add(std::uint32_t id, std::uint32_t keyCode,
                                                        std::uint32_t modifiers) override
    {
        calls_.append(QStringLiteral("add %1: %2 %3").arg(id).arg(keyCode).arg(modifiers));
        if (heldElsewhere_.contains({keyCode, modifiers}))
            return std::unexpected(status);
        added_.insert_or_assign(id, Combination{keyCode, modifiers});
        return {};
    }

    void remove(std::uint32_t id) override
    {
        calls_.append(QStringLiteral("remove %1").arg(id));
        added_.erase(id);
    }

    void listen(Listening listening) override
    {
        calls_.append(QStringLiteral("listen to ") + text(listening));
        listening_ = listening;
    }

    /// What `add` fails with.
    static constexpr std::int32_t status = -9878;

    /// Another program holds the combination from now on, or no longer.
    void holdElsewhere(std::uint32_t keyCode, std::uint32_t modifiers) { heldElsewhere_.insert({keyCode, modifiers}); }
    void freeElsewhere(std::uint32_t keyCode, std::uint32_t modifiers) { heldElsewhere_.erase({keyCode, modifiers}); }

    /// A key goes down or up, modifier keys included. True when nobody else gets to see it.
    bool press(std::uint32_t keyCode)
    {
        modifiers_ |= modifierOf(keyCode);
        if (listening_ == Listening::rawKeys)
            return handlers_.rawKey && handlers_.rawKey(keyCode, modifiers_, true);
        if (listening_ != Listening::hotKeys || active_)
            return false;
        for (const auto &[id, combination] : added_) {
            if (combination != Combination{keyCode, modifiers_})
                continue;
            active_ = {id, keyCode};
            return handlers_.hotKey(id, true);
        }
        return false;
    }

    bool release(std::uint32_t keyCode)
    {
        if (listening_ == Listening::rawKeys) {
            const bool isUsed = handlers_.rawKey && handlers_.rawKey(keyCode, modifiers_, false);
            modifiers_ &= ~modifierOf(keyCode);
            return isUsed;
        }
        modifiers_ &= ~modifierOf(keyCode);
        if (!active_ || active_->second != keyCode)
            return false;
        const std::uint32_t id = std::exchange(active_, std::nullopt)->first;
        return listening_ == Listening::hotKeys && added_.contains(id) && handlers_.hotKey(id, false);
    }

    /// What is held repeats, which nobody hears.
    void repeat() const {}

    /// Calls of the port since it was last asked: "add ID: CODE MODIFIERS", "remove ID", "listen to …".
    [[nodiscard]] QStringList takeCalls() { return std::exchange(calls_, {}); }

    /// The ids that the system holds, in their order.
    [[nodiscard]] QList<std::uint32_t> ids() const
    {
        QList<std::uint32_t> ids;
        for (const auto &[id, combination] : added_)
            ids.append(id);
        return ids;
    }

    [[nodiscard]] const Handlers &handlers() const { return handlers_; }

private:
    static QString text(Listening listening)
    {
        switch (listening) {
        case Listening::nothing: return QStringLiteral("nothing");
        case Listening::hotKeys: return QStringLiteral("hotkeys");
        case Listening::rawKeys: return QStringLiteral("raw keys");
        }
        Q_UNREACHABLE();
    }

    using Combination = std::pair<std::uint32_t, std::uint32_t>;

    [[nodiscard]] static std::uint32_t modifierOf(std::uint32_t keyCode)
    {
        switch (keyCode) {
        case 0x36:
        case 0x37: return CarbonModifier::command;
        case 0x38:
        case 0x3c: return CarbonModifier::shift;
        case 0x3a:
        case 0x3d: return CarbonModifier::option;
        case 0x3b:
        case 0x3e: return CarbonModifier::control;
        default: return 0;
        }
    }

    Handlers handlers_;
    std::map<std::uint32_t, Combination> added_;
    std::set<Combination> heldElsewhere_;
    Listening listening_ = Listening::nothing;
    std::uint32_t modifiers_ = 0;
    /// The hotkey that was heard to go down, with its key.
    std::optional<std::pair<std::uint32_t, std::uint32_t>> active_;
    QStringList calls_;
};

} // namespace vantrel::test
