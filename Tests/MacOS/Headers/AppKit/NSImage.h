#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@class UTType;

// https://developer.apple.com/documentation/appkit/nscolor
@interface NSColor : NSObject <NSCopying, NSSecureCoding>
+ (NSColor *)colorWithSRGBRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
- (void)setFill;
@end
SHIM_EXTERN void NSRectFill(NSRect rect);

// https://developer.apple.com/documentation/appkit/nsgraphicscontext
@interface NSGraphicsContext : NSObject
+ (NSGraphicsContext *)graphicsContextWithCGContext:(CGContextRef)context flipped:(BOOL)initialFlippedState;
@property(class, nullable, strong) NSGraphicsContext *currentContext;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
@end

// https://developer.apple.com/documentation/appkit/nsimage/symbolconfiguration-swift.class
typedef CGFloat NSFontWeight;
SHIM_EXTERN const NSFontWeight NSFontWeightRegular;
SHIM_EXTERN const NSFontWeight NSFontWeightSemibold;
@interface NSImageSymbolConfiguration : NSObject <NSCopying, NSSecureCoding>
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
+ (instancetype)configurationWithPaletteColors:(NSArray<NSColor *> *)paletteColors;
- (instancetype)configurationByApplyingConfiguration:(NSImageSymbolConfiguration *)configuration;
@end

// https://developer.apple.com/documentation/appkit/nsimage
typedef NS_ENUM(NSUInteger, NSCompositingOperation) { NSCompositingOperationSourceOver = 2 };
typedef NSString *NSImageHintKey;
SHIM_EXTERN const NSRect NSZeroRect;
@interface NSImage : NSObject <NSCopying, NSSecureCoding>
+ (nullable instancetype)imageWithSystemSymbolName:(NSString *)name
                          accessibilityDescription:(nullable NSString *)description;
- (nullable NSImage *)imageWithSymbolConfiguration:(NSImageSymbolConfiguration *)configuration;
- (nullable instancetype)initWithContentsOfFile:(NSString *)fileName;
@property NSSize size;
@property(readonly, getter=isValid) BOOL valid;
- (void)drawInRect:(NSRect)destination
          fromRect:(NSRect)source
         operation:(NSCompositingOperation)operation
          fraction:(CGFloat)alpha
    respectFlipped:(BOOL)respectContextIsFlipped
             hints:(nullable NSDictionary<NSImageHintKey, id> *)hints;
@end

#pragma clang assume_nonnull end
