#pragma once

#include "Platform/PlatformError.h"

#include <QCoroTask>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <expected>

namespace vantrel {

/// How the system is to open an application.
struct Opening {
    enum class Instance : std::uint8_t {
        /// The one that runs, if one does: it gets no arguments then.
        any,
        another,
    };
    enum class Appearance : std::uint8_t { front, background, hidden };

    QUrl application;
    QStringList arguments = {};
    Instance instance = Instance::any;
    Appearance appearance = Appearance::front;
};

/// Done once the system has taken it on. Fails with the system's words. Main thread only.
[[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> open(Opening opening);

/// The same, for a process without an event loop.
[[nodiscard]] std::expected<void, PlatformError> openAndWait(const Opening &opening);

} // namespace vantrel
