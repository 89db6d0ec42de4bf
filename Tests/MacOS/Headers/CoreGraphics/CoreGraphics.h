#pragma once

#include <CoreFoundation/CoreFoundation.h>

// https://developer.apple.com/documentation/corefoundation/cgfloat and …/cgrect
typedef double CGFloat;
struct CGPoint {
    CGFloat x;
    CGFloat y;
};
struct CGSize {
    CGFloat width;
    CGFloat height;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
};

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/coregraphics/cgcontext: what a "Create" function answers is released by the
// caller; the release functions take null too.
typedef struct CGContext *CGContextRef;
typedef struct CGImage *CGImageRef;
typedef struct CGColorSpace *CGColorSpaceRef;
typedef CF_ENUM(uint32_t, CGImageAlphaInfo) {
    kCGImageAlphaNone,
    kCGImageAlphaPremultipliedLast,
    kCGImageAlphaPremultipliedFirst,
};
typedef CF_OPTIONS(uint32_t, CGBitmapInfo) {
    kCGBitmapAlphaInfoMask = 0x1F,
    kCGBitmapByteOrder32Little = 2 << 12,
};
SHIM_EXTERN CGContextRef _Nullable CGBitmapContextCreate(void *_Nullable data, size_t width, size_t height,
                                                         size_t bitsPerComponent, size_t bytesPerRow,
                                                         CGColorSpaceRef _Nullable space, uint32_t bitmapInfo);
SHIM_EXTERN void CGContextRelease(CGContextRef _Nullable context);
SHIM_EXTERN void CGContextScaleCTM(CGContextRef context, CGFloat x, CGFloat y);
SHIM_EXTERN void CGImageRelease(CGImageRef _Nullable image);

// https://developer.apple.com/documentation/coregraphics/cgcolorspace
SHIM_EXTERN const CFStringRef kCGColorSpaceSRGB;
SHIM_EXTERN CGColorSpaceRef _Nullable CGColorSpaceCreateWithName(CFStringRef _Nullable name);
SHIM_EXTERN void CGColorSpaceRelease(CGColorSpaceRef _Nullable space);

#pragma clang assume_nonnull end
