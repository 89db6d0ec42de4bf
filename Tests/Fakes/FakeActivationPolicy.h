#pragma once

#include "Platform/ActivationPolicy.h"

#include <functional>

namespace vantrel::test {

/// Counts how often the program came to the front.
class FakeActivationPolicy final : public ActivationPolicy {
public:
    void becomeRegular() override { isRegular_ = true; }
    void becomeAccessory() override { isRegular_ = false; }

    void activate() override
    {
        ++activations_;
        if (activated_)
            activated_();
    }

    [[nodiscard]] bool isRegular() const { return isRegular_; }
    [[nodiscard]] int activations() const { return activations_; }
    /// Called from within each `activate`.
    void onActivate(std::function<void()> activated) { activated_ = std::move(activated); }

private:
    bool isRegular_ = false;
    int activations_ = 0;
    std::function<void()> activated_;
};

} // namespace vantrel::test
