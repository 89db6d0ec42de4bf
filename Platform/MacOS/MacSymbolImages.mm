#include "Platform/MacOS/MacSymbolImages.h"

#include "Platform/FittedRect.h"
#include "Platform/MacOS/PictureCanvas.h"

#import <AppKit/AppKit.h>

namespace vantrel {

QImage MacSymbolImages::image(const QString &name, int pixels, const QColor &color) const
{
    @autoreleasepool {
        NSColor *paint = [NSColor colorWithSRGBRed:color.redF()
                                             green:color.greenF()
                                              blue:color.blueF()
                                             alpha:color.alphaF()];
        NSImageSymbolConfiguration *configuration =
            [[NSImageSymbolConfiguration configurationWithPointSize:pixels weight:NSFontWeightRegular]
                configurationByApplyingConfiguration:[NSImageSymbolConfiguration
                                                         configurationWithPaletteColors:@[ paint ]]];
        NSImage *symbol = [[NSImage imageWithSystemSymbolName:name.toNSString()
                                     accessibilityDescription:nil] imageWithSymbolConfiguration:configuration];
        if (!symbol)
            return {};
        const QRectF place = fittedRect(QSizeF(symbol.size.width, symbol.size.height), pixels);
        return drawnPicture(pixels, [symbol, place] {
            [symbol drawInRect:place.toCGRect()
                      fromRect:NSZeroRect
                     operation:NSCompositingOperationSourceOver
                      fraction:1
                respectFlipped:NO
                         hints:nil];
        });
    }
}

} // namespace vantrel
