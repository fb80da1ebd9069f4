#pragma once

#include <Foundation/Foundation.h>

typedef enum UNAuthorizationOptions : NSUInteger { UNAuthorizationOptionAlert = 1 << 2 } UNAuthorizationOptions;
typedef enum UNNotificationActionOptions : NSUInteger {
    UNNotificationActionOptionNone = 0
} UNNotificationActionOptions;
typedef enum UNNotificationCategoryOptions : NSUInteger {
    UNNotificationCategoryOptionNone = 0
} UNNotificationCategoryOptions;
typedef NSUInteger UNNotificationPresentationOptions;
enum : UNNotificationPresentationOptions {
    UNNotificationPresentationOptionAlert = 1 << 2,
    UNNotificationPresentationOptionList API_AVAILABLE(macos(11.0)) = 1 << 3,
    UNNotificationPresentationOptionBanner API_AVAILABLE(macos(11.0)) = 1 << 4,
};

extern "C" NSString* const UNNotificationDefaultActionIdentifier;
extern "C" NSString* const UNNotificationDismissActionIdentifier;

@interface UNNotificationAction : NSObject
+ (instancetype)actionWithIdentifier:(NSString*)identifier
                               title:(NSString*)title
                             options:(UNNotificationActionOptions)options;
@end

@interface UNNotificationCategory : NSObject
+ (instancetype)categoryWithIdentifier:(NSString*)identifier
                               actions:(NSArray<UNNotificationAction*>*)actions
                     intentIdentifiers:(NSArray<NSString*>*)intentIdentifiers
                               options:(UNNotificationCategoryOptions)options;
@end

@interface UNMutableNotificationContent : NSObject
@property(copy) NSString* title;
@property(copy) NSString* body;
@property(copy) NSString* categoryIdentifier;
@end

@interface UNNotificationRequest : NSObject
@property(readonly) NSString* identifier;
+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNMutableNotificationContent*)content
                              trigger:(nullable id)trigger;
@end

@interface UNNotification : NSObject
@property(readonly) UNNotificationRequest* request;
@end

@interface UNNotificationResponse : NSObject
@property(readonly) UNNotification* notification;
@property(readonly) NSString* actionIdentifier;
@end

@protocol UNUserNotificationCenterDelegate <NSObject>
@end

@interface UNUserNotificationCenter : NSObject
@property(class, readonly) UNUserNotificationCenter* currentNotificationCenter;
@property(weak, nullable) id<UNUserNotificationCenterDelegate> delegate;
- (void)requestAuthorizationWithOptions:(UNAuthorizationOptions)options
                      completionHandler:(void (^)(BOOL granted, NSError* _Nullable error))completionHandler;
- (void)setNotificationCategories:(NSSet<UNNotificationCategory*>*)categories;
- (void)addNotificationRequest:(UNNotificationRequest*)request
         withCompletionHandler:(void (^_Nullable)(NSError* _Nullable error))completionHandler;
- (void)removeDeliveredNotificationsWithIdentifiers:(NSArray<NSString*>*)identifiers;
@end
