#pragma once

#include "Platform/PlatformError.h"
#include "Platform/SafariApplication.h"

#include <QUrl>

#include <chrono>
#include <expected>
#include <functional>
#include <memory>

namespace vantrel {

/// The system's ways to Safari other than scripts. Main thread only.
class SafariBridge {
public:
    struct Settings {
        /// How long Safari may take to answer.
        std::chrono::milliseconds answerLimit = std::chrono::seconds(5);
        /// Told why, on any thread, whenever something that was sent fails.
        std::function<void(const QString &reason)> sendingFailed;
    };

    virtual ~SafariBridge() = default;

    /// The application with that bundle identifier, running or not; null when the system makes none.
    [[nodiscard]] virtual std::shared_ptr<SafariApplication> connect(const QString &bundleID, Settings settings) = 0;

    /// Starts the application without bringing it to the front or showing it. Done once the system has taken that on.
    [[nodiscard]] virtual QCoro::Task<std::expected<void, PlatformError>> startHidden(QUrl application) = 0;
};

} // namespace vantrel
