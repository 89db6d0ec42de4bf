#pragma once

#include <Availability.h>
#include <TargetConditionals.h>

// What the declarations of all frameworks are written with. In place of the C library's own headers, this is the first
// that each framework includes.

#include <cstddef>
#include <cstdint>

#define SHIM_EXTERN extern "C" __attribute__((visibility("default")))

// https://clang.llvm.org/docs/AttributeReference.html#objc-bridge: which casts between C and Objective-C are right.
#define SHIM_BRIDGED(type) __attribute__((objc_bridge(type)))

// https://developer.apple.com/documentation/swift/grouping-related-objective-c-constants
// Written behind "typedef". In C++ an option set is its integer type, so that `A | B` is one.
#define NS_ENUM(type, name)                                                                                            \
    enum name : type name;                                                                                             \
    enum name : type
#define NS_OPTIONS(type, name)                                                                                         \
    type name;                                                                                                         \
    enum : type
#define CF_ENUM NS_ENUM
#define CF_OPTIONS NS_OPTIONS

// https://developer.apple.com/documentation/objectivec/bool: on Intel a char, elsewhere a truth value.
#if __OBJC_BOOL_IS_BOOL
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr
#define Nil nullptr

// https://developer.apple.com/documentation/kernel/mactypes_h
typedef unsigned char Boolean;
typedef unsigned char UInt8;
typedef unsigned short UInt16;
typedef unsigned int UInt32;
typedef int SInt32;
typedef SInt32 OSStatus;
typedef short OSErr;
typedef UInt32 FourCharCode;
typedef FourCharCode OSType;
typedef UInt32 OptionBits;
typedef unsigned long ByteCount;
typedef unsigned long ItemCount;
typedef unsigned long UniCharCount;
typedef UInt16 UniChar;
enum : OSStatus { noErr = 0, procNotFound = -600 };
