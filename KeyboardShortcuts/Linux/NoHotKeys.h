#pragma once

#include "KeyboardShortcuts/DesktopHotKeys.h"

#include <cerrno>

namespace vantrel {

/// For desktops that have no hotkeys for programs.
class NoHotKeys final : public DesktopHotKeys {
public:
    void setHandlers(Handlers /*handlers*/) override {}
    [[nodiscard]] std::expected<void, std::int32_t> add(std::uint32_t /*id*/, std::uint32_t /*keyCode*/,
                                                        std::uint32_t /*modifiers*/) override
    {
        return std::unexpected(ENOTSUP);
    }
    void remove(std::uint32_t /*id*/) override {}
    void listen(Listening /*listening*/) override {}

    [[nodiscard]] Availability availability() const override { return Availability::notAvailable; }
    [[nodiscard]] std::optional<QString> grantedTrigger(std::uint32_t /*id*/) const override { return std::nullopt; }
    void onChange(std::function<void()> /*changed*/) override {}
};

} // namespace vantrel
