#pragma once

#include "Platform/ActivationPolicy.h"

namespace vantrel {

/// Linux desktops list windows, not applications: a program without windows is in nobody's way, and a window is brought
/// to the front by itself. So there is nothing to do.
class LinuxActivationPolicy final : public ActivationPolicy {
public:
    void becomeRegular() override {}
    void becomeAccessory() override {}
    void activate() override {}
};

} // namespace vantrel
