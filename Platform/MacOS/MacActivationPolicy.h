#pragma once

#include "Platform/ActivationPolicy.h"

namespace vantrel {

/// The running application's own policy. The system may refuse to activate it.
class MacActivationPolicy final : public ActivationPolicy {
public:
    void becomeRegular() override;
    void becomeAccessory() override;
    void activate() override;
};

} // namespace vantrel
