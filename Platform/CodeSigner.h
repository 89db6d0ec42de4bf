#pragma once

#include "Platform/PlatformError.h"

#include <QCoroTask>

#include <expected>

namespace vantrel {

/// Signs application bundles with no identity, which is what makes the system start one that was made on this machine.
/// Main thread only.
class CodeSigner {
public:
    virtual ~CodeSigner() = default;

    /// Fails with the signing program's own words.
    [[nodiscard]] virtual QCoro::Task<std::expected<void, PlatformError>> sign(QString bundle) = 0;
};

} // namespace vantrel
