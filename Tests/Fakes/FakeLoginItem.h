#pragma once

#include "Platform/LoginItem.h"

#include <optional>

namespace vantrel::test {

/// A session that starts what a test's program asks for, or refuses.
class FakeLoginItem final : public LoginItem {
public:
    [[nodiscard]] bool isEnabled() const override { return isEnabled_; }

    [[nodiscard]] std::expected<void, PlatformError> setEnabled(bool isEnabled) override
    {
        if (refusal_)
            return std::unexpected(PlatformError{*refusal_});
        isEnabled_ = isEnabled;
        return {};
    }

    void refuse(const QString &message) { refusal_ = message; }
    /// The user has changed it elsewhere.
    void change(bool isEnabled) { isEnabled_ = isEnabled; }

private:
    bool isEnabled_ = false;
    std::optional<QString> refusal_;
};

} // namespace vantrel::test
