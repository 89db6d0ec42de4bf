#pragma once

#include <Foundation/NSCollections.h>
#include <sys/types.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/coreservices/apple_events: two bytes of alignment.
typedef FourCharCode DescType;
typedef FourCharCode AEKeyword;
typedef FourCharCode AEEventClass;
typedef FourCharCode AEEventID;
typedef SInt32 AESendMode;
typedef struct OpaqueAEDataStorageType *_Nullable *AEDataStorage;
#pragma pack(push, 2)
typedef struct AEDesc {
    DescType descriptorType;
    AEDataStorage _Nullable dataHandle;
} AEDesc;
#pragma pack(pop)
typedef AEDesc AEAddressDesc;
typedef AEDesc AppleEvent;
static_assert(sizeof(AEDesc) == 12);
enum : FourCharCode {
    kCoreEventClass = 'aevt',
    kAEOpenApplication = 'oapp',
    kAEReopenApplication = 'rapp',
    kAEOpenDocuments = 'odoc',
    kAEQuitApplication = 'quit',
    kInternetEventClass = 'GURL',
    kAEGetURL = 'GURL',
    kAEActivate = 'actv',
    keyDirectObject = '----',
    typeWildCard = '****',
};
enum : AESendMode { kAEDefaultTimeout = -1, kNoTimeOut = -2, kAEDoNotPromptForUserConsent = 0x00020000 };
enum : OSStatus {
    errAETargetAddressNotPermitted = -1742,
    errAEEventNotPermitted = -1743,
    errAEEventWouldRequireUserConsent = -1744,
};

// https://developer.apple.com/documentation/foundation/nsappleeventdescriptor
@interface NSAppleEventDescriptor : NSObject <NSCopying>
+ (NSAppleEventDescriptor *)descriptorWithBundleIdentifier:(NSString *)bundleIdentifier;
+ (NSAppleEventDescriptor *)descriptorWithProcessIdentifier:(pid_t)processIdentifier;
@property(nullable, readonly) const AEDesc *aeDesc;
@property(nullable, readonly, copy) NSString *stringValue;
@property(readonly) AEEventClass eventClass;
@property(readonly) AEEventID eventID;
@property(readonly) NSInteger numberOfItems;
- (nullable NSAppleEventDescriptor *)descriptorAtIndex:(NSInteger)index;
- (nullable NSAppleEventDescriptor *)paramDescriptorForKeyword:(AEKeyword)keyword;
@end

// https://developer.apple.com/documentation/foundation/nsappleeventmanager
@interface NSAppleEventManager : NSObject
+ (NSAppleEventManager *)sharedAppleEventManager;
- (void)setEventHandler:(id)handler
            andSelector:(SEL)handleEventSelector
          forEventClass:(AEEventClass)eventClass
             andEventID:(AEEventID)eventID;
- (void)removeEventHandlerForEventClass:(AEEventClass)eventClass andEventID:(AEEventID)eventID;
@property(nullable, readonly, retain) NSAppleEventDescriptor *currentAppleEvent;
@end

#pragma clang assume_nonnull end
