#include "Vantrel/Interface/Settings/SymbolIcons.h"

#include "Vantrel/Interface/MenuIconEngine.h"
#include "Vantrel/Pictures/Symbols.h"

namespace vantrel {

QImage SymbolIcons::image(const QString &name, int pixels, const QColor &color) const
{
    QImage image;
    if (system_)
        image = system_->image(name, pixels, color);
    return image.isNull() ? symbolImage(name, pixels, color) : image;
}

QIcon SymbolIcons::icon(const QString &name, const QColor &color) const
{
    return QIcon(new MenuIconEngine([*this, name, color](int pixels) { return image(name, pixels, color); }));
}

} // namespace vantrel
