#pragma once

#include "Platform/ActivationPolicy.h"

namespace vantrel {

/// Counts the open settings windows: while there is one the program is a regular application, so that the window can
/// come to the front, and otherwise an accessory. Main thread only.
class SettingsWindows {
public:
    /// The policy must outlive it.
    explicit SettingsWindows(ActivationPolicy &policy) : policy_(policy) {}

    void windowAppeared();
    void windowDisappeared();

    [[nodiscard]] int count() const { return count_; }

private:
    ActivationPolicy &policy_;
    int count_ = 0;
};

} // namespace vantrel
