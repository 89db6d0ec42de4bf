#pragma once

#include "KeyboardShortcuts/DesktopHotKeys.h"

#include <memory>

namespace vantrel {

/// Hotkeys of the Carbon Event Manager, which take no permission of the user. Its errors are Carbon's, such as -9878
/// (eventHotKeyExistsErr). A combination that another program holds is taken all the same, and both programs hear it.
class CarbonHotKeys final : public DesktopHotKeys {
public:
    CarbonHotKeys();
    ~CarbonHotKeys() override;
    Q_DISABLE_COPY_MOVE(CarbonHotKeys)

    void setHandlers(Handlers handlers) override;
    [[nodiscard]] std::expected<void, std::int32_t> add(std::uint32_t id, std::uint32_t keyCode,
                                                        std::uint32_t modifiers) override;
    void remove(std::uint32_t id) override;
    void listen(Listening listening) override;

    [[nodiscard]] Availability availability() const override { return Availability::available; }
    [[nodiscard]] std::optional<QString> grantedTrigger(std::uint32_t /*id*/) const override { return std::nullopt; }
    void onChange(std::function<void()> /*changed*/) override {}

private:
    struct System;

    std::unique_ptr<System> system_;
};

} // namespace vantrel
