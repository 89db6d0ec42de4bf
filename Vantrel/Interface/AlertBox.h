#pragma once

#include "Vantrel/FailureAlert.h"

namespace vantrel {

/// Alerts as windows of their own.
class AlertBox final : public FailureAlert {
public:
    void show(const QString &title, const QString &message) override;
};

} // namespace vantrel
