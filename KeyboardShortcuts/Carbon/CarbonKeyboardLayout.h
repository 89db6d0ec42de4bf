#pragma once

#include "KeyboardShortcuts/KeyboardLayout.h"

namespace vantrel {

/// The layout that the user has chosen in the input menu, or the last one before it that types ASCII where that one
/// doesn't, as Russian ones and input methods.
class CarbonKeyboardLayout final : public KeyboardLayout {
public:
    CarbonKeyboardLayout() = default;
    ~CarbonKeyboardLayout() override;
    Q_DISABLE_COPY_MOVE(CarbonKeyboardLayout)

    [[nodiscard]] std::optional<QString> character(std::uint32_t keyCode) const override;
    void onChange(std::function<void()> changed) override;

private:
    void tellChange() const;

    std::function<void()> changed_;
    bool isObserving_ = false;
};

} // namespace vantrel
