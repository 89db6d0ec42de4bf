#include "Platform/MacOS/BundleIcons.h"

#include "Platform/FittedRect.h"
#include "Platform/MacOS/PictureCanvas.h"

#include <QFileInfo>

#import <AppKit/AppKit.h>

namespace vantrel {
namespace {

/// None when the bundle names no file, or one that is no picture.
NSImage *bundleImage(NSURL *application)
{
    NSBundle *bundle = [NSBundle bundleWithURL:application];
    id name = [bundle objectForInfoDictionaryKey:@"CFBundleIconFile"];
    if (![name isKindOfClass:[NSString class]])
        return nil;
    NSURL *file = [bundle URLForResource:[static_cast<NSString *>(name) stringByDeletingPathExtension]
                           withExtension:@"icns"];
    NSString *path = file.path;
    return path ? [[NSImage alloc] initWithContentsOfFile:path] : nil;
}

} // namespace

QImage BundleIcons::icon(const QUrl &application, int pixels) const
{
    @autoreleasepool {
        NSImage *image = bundleImage(application.toNSURL());
        // For what isn't there, the workspace has a sheet of paper.
        if (!image && !QFileInfo::exists(application.toLocalFile()))
            return {};
        if (!image)
            image = [NSWorkspace.sharedWorkspace iconForFile:application.toLocalFile().toNSString()];
        const QRectF place = fittedRect(QSizeF(image.size.width, image.size.height), pixels);
        return drawnPicture(pixels, [image, place] {
            [image drawInRect:place.toCGRect()
                      fromRect:NSZeroRect
                     operation:NSCompositingOperationSourceOver
                      fraction:1
                respectFlipped:NO
                         hints:nil];
        });
    }
}

} // namespace vantrel
