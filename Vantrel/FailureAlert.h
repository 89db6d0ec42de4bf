#pragma once

#include <QString>

namespace vantrel {

/// Tells the user about a failure, in front of all other windows. Main thread only.
class FailureAlert {
public:
    virtual ~FailureAlert() = default;

    /// Returns at once; the user dismisses the alert whenever they want to.
    virtual void show(const QString &title, const QString &message) = 0;
};

} // namespace vantrel
