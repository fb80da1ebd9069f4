#pragma once

#include <objc/NSObject.h>
#include <os/availability.h>

// Core Graphics, Foundation

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

@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject
+ (instancetype)dictionaryWithObjects:(const ObjectType _Nonnull[_Nonnull])objects
                              forKeys:(const KeyType<NSCopying> _Nonnull[_Nonnull])keys
                                count:(NSUInteger)count;
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

// AppKit

extern "C" NSAttributedStringKey const NSFontAttributeName;
extern "C" NSAttributedStringKey const NSParagraphStyleAttributeName;
extern "C" NSAttributedStringKey const NSBaselineOffsetAttributeName;

@interface NSColor : NSObject
@property(class, readonly) NSColor* systemGreenColor;
@property(class, readonly) NSColor* systemOrangeColor;
@property(class, readonly) NSColor* systemYellowColor;
@end

@interface NSFont : NSObject
+ (NSFont*)systemFontOfSize:(CGFloat)size;
@end

typedef enum NSTextAlignment : NSInteger { NSTextAlignmentRight = 2 } NSTextAlignment; // of arm64

@interface NSMutableParagraphStyle : NSObject
@property CGFloat paragraphSpacing;
@property NSTextAlignment alignment;
@end

API_AVAILABLE(macos(11.0))
@interface NSImageSymbolConfiguration : NSObject
+ (instancetype)configurationWithPaletteColors:(NSArray<NSColor*>*)colors API_AVAILABLE(macos(12.0));
@end

@interface NSImage : NSObject
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description API_AVAILABLE(macos(11.0));
- (nullable NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration API_AVAILABLE(macos(11.0));
- (void)setTemplate:(BOOL)isTemplate; // its property is named by a keyword of C++
@end

@interface NSMenu : NSObject
@end

@interface NSScreen : NSObject
@property(class, readonly) NSArray<NSScreen*>* screens;
@property(readonly) NSRect frame;
@end

@interface NSWindow : NSObject
- (NSRect)convertRectToScreen:(NSRect)rect;
@end

@interface NSView : NSObject
@property(readonly, nullable) NSWindow* window;
@property NSRect bounds;
- (NSRect)convertRect:(NSRect)rect toView:(nullable NSView*)view;
@end

typedef enum NSCellImagePosition : NSUInteger { NSImageRight = 3 } NSCellImagePosition;

@interface NSStatusBarButton : NSView
@property NSCellImagePosition imagePosition;
@property(copy) NSString* title;
@property(copy) NSAttributedString* attributedTitle;
@property(nullable) NSImage* image;
@property(nullable) NSFont* font;
- (void)setAccessibilityLabel:(nullable NSString*)label;
@end

static const CGFloat NSVariableStatusItemLength = -1.0;

@interface NSStatusItem : NSObject
@property(readonly, nullable) NSStatusBarButton* button API_AVAILABLE(macos(10.10));
@property(nullable) NSMenu* menu;
@end

@interface NSStatusBar : NSObject
@property(class, readonly) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end
