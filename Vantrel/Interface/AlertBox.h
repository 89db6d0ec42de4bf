#pragma once

#include "Platform/ActivationPolicy.h"
#include "Vantrel/FailureAlert.h"

namespace vantrel {

/// Alerts as windows of their own, before those of other programs: a program that is not the active one would show them
/// behind.
class AlertBox final : public FailureAlert {
public:
    /// The policy must outlive it.
    explicit AlertBox(ActivationPolicy &policy) : policy_(policy) {}

    void show(const QString &title, const QString &message) override;

private:
    ActivationPolicy &policy_;
};

} // namespace vantrel
