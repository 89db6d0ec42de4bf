#pragma once

#include "Platform/SymbolImages.h"

namespace vantrel {

/// The symbols that come with macOS.
class MacSymbolImages final : public SymbolImages {
public:
    [[nodiscard]] QImage image(const QString &name, int pixels, const QColor &color) const override;
};

} // namespace vantrel
