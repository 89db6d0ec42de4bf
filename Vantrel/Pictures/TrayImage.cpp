#include "Vantrel/Pictures/TrayImage.h"

#include "Vantrel/Pictures/Symbols.h"

using namespace Qt::StringLiterals;

namespace vantrel {

QImage trayImage(int pixels, TrayColor color)
{
    switch (color) {
    case TrayColor::light: return symbolImage(u"paperplane.fill"_s, pixels, QColor(0xf4, 0xf4, 0xf4));
    case TrayColor::dark: return symbolImage(u"paperplane.fill"_s, pixels, QColor(0x26, 0x26, 0x26));
    case TrayColor::unknown: return drawnImage(u"paperplane.outlined"_s, pixels);
    }
    return {};
}

} // namespace vantrel
