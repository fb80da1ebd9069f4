#pragma once

#include <objc/NSObject.h>
#include <os/availability.h>

typedef double CGFloat;
typedef struct {
    CGFloat x, y;
} NSPoint;
typedef struct {
    CGFloat width, height;
} NSSize;
typedef struct {
    NSPoint origin;
    NSSize size;
} NSRect;

static inline CGFloat NSMinX(NSRect rect)
{
    return rect.origin.x;
}
static inline CGFloat NSMaxY(NSRect rect)
{
    return rect.origin.y + rect.size.height;
}
static inline CGFloat NSWidth(NSRect rect)
{
    return rect.size.width;
}
static inline CGFloat NSHeight(NSRect rect)
{
    return rect.size.height;
}

@protocol NSCopying
@end

@interface NSString : NSObject <NSCopying>
@end

@interface NSNumber : NSObject
+ (NSNumber*)numberWithDouble:(double)value;
@end

@interface NSArray<__covariant ObjectType> : NSObject
@property(readonly, nullable) ObjectType firstObject;
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nonnull])objects count:(NSUInteger)count;
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
+ (instancetype)array;
- (void)addObject:(ObjectType)object;
@end

@interface NSSet<__covariant ObjectType> : NSObject
+ (instancetype)setWithArray:(NSArray<ObjectType>*)array;
@end

@interface NSError : NSObject
@end

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@end

@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject
+ (instancetype)dictionaryWithObjects:(const ObjectType _Nonnull[_Nonnull])objects
                              forKeys:(const KeyType<NSCopying> _Nonnull[_Nonnull])keys
                                count:(NSUInteger)count;
@property(readonly) NSArray<ObjectType>* allValues;
@end

@interface NSMutableDictionary<KeyType, ObjectType> : NSDictionary <KeyType, ObjectType>
+ (instancetype)dictionary;
- (void)setObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
@end

typedef NSString* NSAttributedStringKey;
@interface NSAttributedString : NSObject
- (instancetype)initWithString:(NSString*)string attributes:(NSDictionary<NSAttributedStringKey, id>*)attributes;
@end

typedef enum NSActivityOptions : uint64_t {
    NSActivityUserInitiatedAllowingIdleSystemSleep = 0x00ffffffULL & ~(1ULL << 20),
} NSActivityOptions;

@interface NSProcessInfo : NSObject
@property(class, readonly) NSProcessInfo* processInfo;
- (id<NSObject>)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString*)reason API_AVAILABLE(macos(10.9));
- (void)endActivity:(id<NSObject>)activity API_AVAILABLE(macos(10.9));
@end
