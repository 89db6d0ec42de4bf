#pragma once

#include <Foundation/NSObject.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/foundation/nsstring
typedef unsigned short unichar;
typedef NS_ENUM(NSInteger, NSComparisonResult) { NSOrderedAscending = -1L, NSOrderedSame, NSOrderedDescending };
@interface NSString : NSObject <NSCopying, NSSecureCoding>
@property(readonly) NSUInteger length;
- (unichar)characterAtIndex:(NSUInteger)index;
- (instancetype)initWithCharacters:(const unichar *)characters length:(NSUInteger)length;
+ (nullable instancetype)stringWithUTF8String:(const char *)text;
@property(nullable, readonly) const char *UTF8String;
- (BOOL)isEqualToString:(NSString *)string;
- (NSComparisonResult)localizedStandardCompare:(NSString *)string;
- (NSString *)stringByDeletingPathExtension;
- (NSString *)lastPathComponent;
@end

// https://developer.apple.com/documentation/foundation/nsurl
@interface NSURL : NSObject <NSCopying, NSSecureCoding>
+ (nullable instancetype)URLWithString:(NSString *)text;
+ (NSURL *)fileURLWithPath:(NSString *)path;
+ (NSURL *)fileURLWithPath:(NSString *)path isDirectory:(BOOL)isDirectory;
@property(readonly, getter=isFileURL) BOOL fileURL;
@property(nullable, readonly, copy) NSString *path;
@property(nullable, readonly, copy) NSString *absoluteString;
@end

// https://developer.apple.com/documentation/foundation/nsdata
@interface NSData : NSObject <NSCopying, NSSecureCoding>
@property(readonly) NSUInteger length;
@property(readonly) const void *bytes;
+ (instancetype)dataWithBytes:(nullable const void *)bytes length:(NSUInteger)length;
@end

// https://developer.apple.com/documentation/foundation/nsdate
@interface NSDate : NSObject <NSCopying, NSSecureCoding>
@property(readonly) NSTimeInterval timeIntervalSince1970;
+ (instancetype)dateWithTimeIntervalSinceNow:(NSTimeInterval)seconds;
@end

// https://developer.apple.com/documentation/foundation/nsnumber
@interface NSNumber : NSObject <NSCopying, NSSecureCoding>
+ (NSNumber *)numberWithBool:(BOOL)value;
+ (NSNumber *)numberWithChar:(char)value;
+ (NSNumber *)numberWithInt:(int)value;
+ (NSNumber *)numberWithUnsignedInt:(unsigned int)value;
+ (NSNumber *)numberWithLong:(long)value;
+ (NSNumber *)numberWithUnsignedLong:(unsigned long)value;
+ (NSNumber *)numberWithLongLong:(long long)value;
+ (NSNumber *)numberWithDouble:(double)value;
@property(readonly) BOOL boolValue;
@property(readonly) int intValue;
@property(readonly) long long longLongValue;
@property(readonly) unsigned int unsignedIntValue;
@property(readonly, copy) NSString *stringValue;
@end

#pragma clang assume_nonnull end
