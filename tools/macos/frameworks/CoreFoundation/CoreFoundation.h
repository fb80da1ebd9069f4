#pragma once

#include <MacTypes.h>

#ifdef __cplusplus
extern "C" {
#endif

// Base types
typedef long CFIndex;
typedef unsigned long CFTypeID;
typedef unsigned long CFHashCode;
typedef const void* CFTypeRef;
typedef const struct __CFAllocator* CFAllocatorRef;
typedef const struct __CFString* CFStringRef;
typedef const struct __CFBoolean* CFBooleanRef;
typedef const struct __CFNumber* CFNumberRef;
typedef const struct __CFDate* CFDateRef;
typedef const struct __CFData* CFDataRef;
typedef const struct __CFURL* CFURLRef;
typedef const struct __CFArray* CFArrayRef;
typedef struct __CFArray* CFMutableArrayRef;
typedef const struct __CFDictionary* CFDictionaryRef;
typedef struct __CFDictionary* CFMutableDictionaryRef;
typedef const struct __CFLocale* CFLocaleRef;
typedef struct __CFError* CFErrorRef;
typedef struct __CFBundle* CFBundleRef;
typedef struct __CFRunLoop* CFRunLoopRef;
typedef struct __CFRunLoopSource* CFRunLoopSourceRef;
typedef CFStringRef CFRunLoopMode;
typedef CFStringRef CFLocaleIdentifier;

extern const CFAllocatorRef kCFAllocatorDefault;
CFTypeRef CFRetain(CFTypeRef object);
void CFRelease(CFTypeRef object);
CFTypeID CFGetTypeID(CFTypeRef object);

// CFString
#define CFSTR(text) ((CFStringRef)__builtin___CFStringMakeConstantString("" text ""))
CFTypeID CFStringGetTypeID(void);

// CFBoolean, CFNumber
extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;
typedef CFIndex CFNumberType;
enum { kCFNumberIntType = 9, kCFNumberLongLongType = 11, kCFNumberDoubleType = 13 };
CFTypeID CFBooleanGetTypeID(void);
Boolean CFBooleanGetValue(CFBooleanRef boolean);
CFTypeID CFNumberGetTypeID(void);
CFNumberRef CFNumberCreate(CFAllocatorRef allocator, CFNumberType type, const void* value);
Boolean CFNumberIsFloatType(CFNumberRef number);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value);

// CFDate, CFData
CFTypeID CFDateGetTypeID(void);
CFTypeID CFDataGetTypeID(void);

// CFURL, CFBundle
CFURLRef CFURLCreateCopyDeletingLastPathComponent(CFAllocatorRef allocator, CFURLRef url);
CFBundleRef CFBundleGetMainBundle(void);
CFURLRef CFBundleCopyBundleURL(CFBundleRef bundle);

// CFArray
typedef struct CFArrayCallBacks CFArrayCallBacks;
extern const CFArrayCallBacks kCFTypeArrayCallBacks;
CFTypeID CFArrayGetTypeID(void);
CFIndex CFArrayGetCount(CFArrayRef array);
const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);
CFMutableArrayRef CFArrayCreateMutable(CFAllocatorRef allocator, CFIndex capacity, const CFArrayCallBacks* callBacks);
void CFArrayAppendValue(CFMutableArrayRef array, const void* value);

// CFDictionary
typedef struct CFDictionaryKeyCallBacks CFDictionaryKeyCallBacks;
typedef struct CFDictionaryValueCallBacks CFDictionaryValueCallBacks;
typedef void (*CFDictionaryApplierFunction)(const void* key, const void* value, void* context);
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;
const void* CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key);
CFTypeID CFDictionaryGetTypeID(void);
CFMutableDictionaryRef CFDictionaryCreateMutable(CFAllocatorRef allocator, CFIndex capacity,
                                                 const CFDictionaryKeyCallBacks* keyCallBacks,
                                                 const CFDictionaryValueCallBacks* valueCallBacks);
void CFDictionarySetValue(CFMutableDictionaryRef dictionary, const void* key, const void* value);
void CFDictionaryApplyFunction(CFDictionaryRef dictionary, CFDictionaryApplierFunction applier, void* context);

// CFLocale
CFLocaleRef CFLocaleCopyCurrent(void);
CFLocaleIdentifier CFLocaleGetIdentifier(CFLocaleRef locale);

// CFPreferences
extern const CFStringRef kCFPreferencesCurrentApplication;
CFTypeRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application);
Boolean CFPreferencesGetAppBooleanValue(CFStringRef key, CFStringRef application, Boolean* keyExistsAndIsValid);
void CFPreferencesSetAppValue(CFStringRef key, CFTypeRef value, CFStringRef application);
Boolean CFPreferencesAppSynchronize(CFStringRef application);

// CFRunLoop
extern const CFRunLoopMode kCFRunLoopCommonModes;
CFRunLoopRef CFRunLoopGetMain(void);
void CFRunLoopAddSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopRemoveSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode);

#ifdef __cplusplus
}
#endif
