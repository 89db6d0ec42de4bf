#include "Platform/MacOS/PictureCanvas.h"

#import <AppKit/AppKit.h>

namespace vantrel {
namespace {

CGContextRef makeContext(QImage &image)
{
    constexpr size_t bitsPerComponent = 8;
    constexpr uint32_t format = uint32_t(kCGImageAlphaPremultipliedFirst) | uint32_t(kCGBitmapByteOrder32Little);
    CGColorSpaceRef space = CGColorSpaceCreateWithName(kCGColorSpaceSRGB);
    CGContextRef context = CGBitmapContextCreate(image.bits(), size_t(image.width()), size_t(image.height()),
                                                 bitsPerComponent, size_t(image.bytesPerLine()), space, format);
    CGColorSpaceRelease(space);
    return context;
}

} // namespace

QImage drawnPicture(int pixels, const std::function<void()> &draw)
{
    if (pixels < 1)
        return {};
    @autoreleasepool {
        QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        CGContextRef context = makeContext(image);
        if (!context)
            return {};
        [NSGraphicsContext saveGraphicsState];
        NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context flipped:NO];
        draw();
        [NSGraphicsContext restoreGraphicsState];
        CGContextRelease(context);
        return image;
    }
}

} // namespace vantrel
