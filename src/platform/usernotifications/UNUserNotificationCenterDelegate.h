#pragma once

#include "platform/usernotifications/UNNotificationPresentationOptions.h"
#include "platform/usernotifications/UNNotificationRequest.h"
#include "platform/usernotifications/UNNotificationResponse.h"

#include <functional>

namespace platform {

class UNUserNotificationCenter;

// Hears from the notification center, which does not own it, on the main thread. Each completion
// handler must be called once.
class UNUserNotificationCenterDelegate {
public:
    virtual ~UNUserNotificationCenterDelegate() = default;

    // A notification is about to show while the application is in front.
    virtual void userNotificationCenterWillPresentNotification(UNUserNotificationCenter&,
        const UNNotificationRequest& notification,
        const std::function<void(UNNotificationPresentationOptions)>& completionHandler) = 0;

    // The user has clicked a notification. It is over when the handler is called.
    virtual void userNotificationCenterDidReceiveNotificationResponse(UNUserNotificationCenter&,
        const UNNotificationResponse& response, const std::function<void()>& completionHandler) = 0;
};

} // namespace platform
