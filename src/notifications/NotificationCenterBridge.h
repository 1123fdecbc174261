#pragma once

#include "platform/usernotifications/UNNotificationSettings.h"
#include "platform/usernotifications/UNUserNotificationCenterDelegate.h"

#include <functional>
#include <optional>
#include <string>

namespace velmaro {

// Shows the notifications that pages ask for, with the user's permission, and opens their links.
class NotificationCenterBridge final : public platform::UNUserNotificationCenterDelegate {
public:
    // The one of the application. On first use it becomes the notification center's delegate.
    static NotificationCenterBridge& shared();

    NotificationCenterBridge();

    // Tells `completion` whether notifications may be posted, going by the center's current
    // settings. A user who has not decided is asked, once a run; the answer may take its time.
    // Calls made until then are answered with no.
    void ensureAuthorized(const platform::UNNotificationSettings& settings,
        std::function<void(bool mayPost)> completion);

    // Posts a notification, or drops it when the user does not want any. Clicking it opens
    // `deepLink`, if there is one. It replaces an earlier one with this identifier.
    void post(const std::string& title, const std::string& body,
        const std::optional<std::string>& deepLink, const std::string& identifier);

    void userNotificationCenterWillPresentNotification(platform::UNUserNotificationCenter&,
        const platform::UNNotificationRequest& notification,
        const std::function<void(platform::UNNotificationPresentationOptions)>& completionHandler)
        override;
    void userNotificationCenterDidReceiveNotificationResponse(platform::UNUserNotificationCenter&,
        const platform::UNNotificationResponse& response,
        const std::function<void()>& completionHandler) override;

private:
    bool authRequested_ = false; // in this run
};

} // namespace velmaro
