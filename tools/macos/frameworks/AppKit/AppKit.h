#pragma once

#include <Foundation/Foundation.h>

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
