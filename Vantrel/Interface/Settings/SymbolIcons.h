#pragma once

#include "Platform/SymbolImages.h"

#include <QIcon>

namespace vantrel {

/// Symbols by their names: the system's own, else the program's drawings of them. Main thread only.
class SymbolIcons {
public:
    /// Null for the program's drawings; else it must outlive this and all icons.
    explicit SymbolIcons(const SymbolImages *system) : system_(system) {}

    /// As `SymbolImages::image`.
    [[nodiscard]] QImage image(const QString &name, int pixels, const QColor &color) const;

    /// Drawn at each size at which it is shown.
    [[nodiscard]] QIcon icon(const QString &name, const QColor &color) const;

private:
    const SymbolImages *system_;
};

} // namespace vantrel
