#pragma once

#include "KeyboardShortcuts/DesktopHotKeys.h"
#include "Tests/Fakes/FakeHotKeyPort.h"

#include <QHash>

namespace vantrel::test {

/// Hotkeys of a desktop that says what a test says.
class FakeDesktopHotKeys final : public DesktopHotKeys {
public:
    void setHandlers(Handlers handlers) override { port_.setHandlers(std::move(handlers)); }
    [[nodiscard]] std::expected<void, std::int32_t> add(std::uint32_t id, std::uint32_t keyCode,
                                                        std::uint32_t modifiers) override
    {
        return port_.add(id, keyCode, modifiers);
    }
    void remove(std::uint32_t id) override { port_.remove(id); }
    void listen(Listening listening) override { port_.listen(listening); }

    [[nodiscard]] Availability availability() const override { return availability_; }
    [[nodiscard]] std::optional<QString> grantedTrigger(std::uint32_t id) const override
    {
        const auto found = triggers_.constFind(id);
        return found == triggers_.constEnd() ? std::nullopt : std::optional(*found);
    }
    void onChange(std::function<void()> changed) override { changed_ = std::move(changed); }

    [[nodiscard]] FakeHotKeyPort &keys() { return port_; }

    void setAvailability(Availability availability)
    {
        availability_ = availability;
        if (changed_)
            changed_();
    }

    void grant(std::uint32_t id, const QString &trigger)
    {
        triggers_.insert(id, trigger);
        if (changed_)
            changed_();
    }

private:
    FakeHotKeyPort port_;
    Availability availability_ = Availability::available;
    QHash<std::uint32_t, QString> triggers_;
    std::function<void()> changed_;
};

} // namespace vantrel::test
