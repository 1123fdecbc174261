#pragma once

#include "platform/gtk/foundation/Permission.h"
#include "platform/gtk/usernotifications/NotificationService.h"
#include "platform/usernotifications/UNNotificationResponse.h"
#include "platform/usernotifications/UNUserNotificationCenter.h"

#include <deque>
#include <map>

namespace gtk {

// The notifications of this program: whether it may post them, how they are shown, and what is told
// of clicks.
class GtkUserNotificationCenter final : public platform::UNUserNotificationCenter {
public:
    static constexpr auto permissionKey = "notificationsAllowed";

    // What the user is told about the permission.
    static constexpr auto explanation =
        "Notifications remind you of what is due and tell you what has changed.";

    // Asks the user, in an alert of the current platform, whether notifications may be shown.
    static void askUser(std::function<void(bool isAllowed)> answer);

    // The permission is null where the desktop manages permissions itself, as it does for programs
    // in a sandbox. `queue` must outlive this.
    GtkUserNotificationCenter(platform::DispatchQueue& queue,
        std::unique_ptr<Permission> permission, std::unique_ptr<NotificationService> service);

    void setDelegate(platform::UNUserNotificationCenterDelegate* delegate) override;
    void getNotificationSettings(
        std::function<void(const platform::UNNotificationSettings&)> completion) override;
    void requestAuthorization(platform::UNAuthorizationOptions options,
        std::function<void(bool granted, const std::optional<platform::NSError>&)> completion)
        override;
    void add(const platform::UNNotificationRequest& request,
        std::function<void(const std::optional<platform::NSError>&)> completion) override;

    // Null where the desktop manages permissions itself.
    Permission* permission() { return permission_.get(); }

    // To be called when the user has clicked a notification. Without a delegate the click waits for
    // one.
    void receiveClick(const std::map<std::string, std::string>& userInfo);

private:
    std::optional<bool> isAllowed() const;
    void tellDecision();
    void deliverClicks();

    platform::DispatchQueue& queue_;
    std::unique_ptr<Permission> permission_;
    std::unique_ptr<NotificationService> service_;
    platform::NotificationCenter::Observer decisions_;
    platform::UNUserNotificationCenterDelegate* delegate_ = nullptr;
    std::deque<platform::UNNotificationResponse> clicks_;
    std::deque<std::function<void(bool granted, const std::optional<platform::NSError>&)>> waiting_;
};

} // namespace gtk
