#include "Services.h"

#include <QMetaObject>

#import <UserNotifications/UserNotifications.h>

using quillon::UserNotifications;

/// Hears what the user does with a notification. The system calls on a thread of its own choosing.
@interface QuillonNotificationDelegate : NSObject <UNUserNotificationCenterDelegate>
@property(nonatomic) UserNotifications* notifications;
@end

@implementation QuillonNotificationDelegate
- (void)userNotificationCenter:(UNUserNotificationCenter*)center
       willPresentNotification:(UNNotification*)notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions options))completionHandler
{
    if (@available(macOS 11.0, *))
        completionHandler(UNNotificationPresentationOptionList | UNNotificationPresentationOptionBanner);
    else
        completionHandler(UNNotificationPresentationOptionAlert);
}

- (void)userNotificationCenter:(UNUserNotificationCenter*)center
    didReceiveNotificationResponse:(UNNotificationResponse*)response
             withCompletionHandler:(void (^)(void))completionHandler
{
    const QString identifier = QString::fromNSString(response.notification.request.identifier);
    const QString action = QString::fromNSString(response.actionIdentifier);
    const QString clicked = QString::fromNSString(UNNotificationDefaultActionIdentifier);
    const QString dismissed = QString::fromNSString(UNNotificationDismissActionIdentifier);
    UserNotifications* const notifications = self.notifications;
    if (action != dismissed) {
        QMetaObject::invokeMethod(
            notifications, [=] { Q_EMIT notifications->chosen(identifier, action == clicked ? QString() : action); },
            Qt::QueuedConnection);
    }
    completionHandler();
}
@end

namespace quillon {

namespace {

class MacNotifications final : public UserNotifications {
public:
    MacNotifications()
        // The system knows who posts by the bundle, and ends a program that asks without one.
        : center_(NSBundle.mainBundle.bundleIdentifier ? UNUserNotificationCenter.currentNotificationCenter : nil)
        , delegate_([[QuillonNotificationDelegate alloc] init])
    {
        delegate_.notifications = this;
        center_.delegate = delegate_;
    }

    ~MacNotifications() override { center_.delegate = nil; }

    void post(const UserNotification& notification) override
    {
        UNMutableNotificationContent* content = [[UNMutableNotificationContent alloc] init];
        content.title = notification.title.toNSString();
        content.body = notification.text.toNSString();
        content.categoryIdentifier = categoryOf(notification);
        UNUserNotificationCenter* const center = center_;
        UNNotificationRequest* request =
            [UNNotificationRequest requestWithIdentifier:notification.identifier.toNSString()
                                                 content:content
                                                 trigger:nil];
        // The system asks the user at the first time only.
        [center requestAuthorizationWithOptions:UNAuthorizationOptionAlert
                              completionHandler:^(BOOL granted, NSError*) {
                                if (granted)
                                    [center addNotificationRequest:request withCompletionHandler:nil];
                              }];
    }

    void withdraw(const QString& identifier) override
    {
        [center_ removeDeliveredNotificationsWithIdentifiers:@[ identifier.toNSString() ]];
    }

private:
    /// Actions belong to categories, which have to be known ahead; each kind of notification is one.
    NSString* categoryOf(const UserNotification& notification)
    {
        NSMutableArray<UNNotificationAction*>* actions = [NSMutableArray array];
        for (const auto& action : notification.actions)
            [actions addObject:[UNNotificationAction actionWithIdentifier:action.identifier.toNSString()
                                                                    title:action.title.toNSString()
                                                                  options:UNNotificationActionOptionNone]];
        NSString* const identifier = notification.identifier.toNSString();
        [categories_ setObject:[UNNotificationCategory categoryWithIdentifier:identifier
                                                                      actions:actions
                                                            intentIdentifiers:@[]
                                                                      options:UNNotificationCategoryOptionNone]
                        forKey:identifier];
        [center_ setNotificationCategories:[NSSet setWithArray:categories_.allValues]];
        return identifier;
    }

    UNUserNotificationCenter* const center_;
    QuillonNotificationDelegate* const delegate_;
    NSMutableDictionary<NSString*, UNNotificationCategory*>* const categories_ = [NSMutableDictionary dictionary];
};

} // namespace

std::unique_ptr<UserNotifications> makeUserNotifications(const NotificationSender& /*sender*/)
{
    return std::make_unique<MacNotifications>();
}

} // namespace quillon
