#pragma once

#include "Platform/ApplicationIcons.h"

namespace vantrel {

/// The icon file that a bundle names, else the workspace's icon for the bundle.
class BundleIcons final : public ApplicationIcons {
public:
    [[nodiscard]] QImage icon(const QUrl &application, int pixels) const override;
};

} // namespace vantrel
