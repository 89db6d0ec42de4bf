#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace vantrel {

/// The system's own symbols. Main thread only.
class SymbolImages {
public:
    virtual ~SymbolImages() = default;

    /// The symbol of that name, as "eye.slash", in one colour on a transparent square with a side of that many device
    /// pixels. Null when the system has none of the name.
    [[nodiscard]] virtual QImage image(const QString &name, int pixels, const QColor &color) const = 0;
};

} // namespace vantrel
