#pragma once

#include "Platform/PlatformError.h"

#include <QtGlobal>

#include <cstdint>
#include <expected>
#include <optional>

namespace vantrel {

/// What the system's service management made of a request to open the app at login, or no longer to. The numbers are
/// the system's (ServiceManagement.framework).
struct ServiceRegistration {
    enum class Wish : std::uint8_t { on, off };

    enum class Status : std::uint8_t {
        notRegistered = 0,
        enabled = 1,
        /// Registered, but the user has to allow it in the system's settings, or has switched it off there.
        requiresApproval = 2,
        /// What was never registered is often not found instead.
        notFound = 3,
    };

    struct Refusal {
        /// There was nothing to switch off.
        static constexpr qint64 jobNotFound = 6;
        /// There was nothing to switch on.
        static constexpr qint64 alreadyRegistered = 12;

        qint64 code = 0;
        /// The system's own words.
        QString message;
    };

    Wish wish = Wish::on;
    /// None when the system did it.
    std::optional<Refusal> refusal = {};
    /// As it is afterwards.
    Status status = Status::notRegistered;

    /// Whether what was wished holds now, else what the user can do.
    [[nodiscard]] std::expected<void, PlatformError> result() const;
};

} // namespace vantrel
