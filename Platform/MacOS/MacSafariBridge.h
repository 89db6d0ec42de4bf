#pragma once

#include "Platform/SafariBridge.h"

namespace vantrel {

/// The system's scripting bridge.
class MacSafariBridge final : public SafariBridge {
public:
    [[nodiscard]] std::shared_ptr<SafariApplication> connect(const QString &bundleID, Settings settings) override;
    [[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> startHidden(QUrl application) override;
};

} // namespace vantrel
