#pragma once

#include "platform/foundation/NSError.h"
#include "platform/usernotifications/UNAuthorizationOptions.h"
#include "platform/usernotifications/UNNotificationRequest.h"
#include "platform/usernotifications/UNNotificationSettings.h"

#include <functional>
#include <optional>

namespace platform {

class UNUserNotificationCenterDelegate;

// The desktop's notifications. The platform owns the center. Main thread only; every completion is
// called once, in a later task of the main queue, unless the program ends first.
class UNUserNotificationCenter {
public:
    static UNUserNotificationCenter& currentNotificationCenter();

    virtual ~UNUserNotificationCenter() = default;

    // The delegate decides how notifications show in front and takes their clicks; it is not owned.
    // Without a delegate clicks wait, and nothing shows in front.
    virtual void setDelegate(UNUserNotificationCenterDelegate* delegate) = 0;

    virtual void getNotificationSettings(
        std::function<void(const UNNotificationSettings&)> completion) = 0;

    // Asks the user, unless they have decided before. The decision outlives the program. The answer
    // may take as long as the user does.
    virtual void requestAuthorization(UNAuthorizationOptions options,
        std::function<void(bool granted, const std::optional<NSError>& error)> completion) = 0;

    // Shows a notification. The error tells why that failed; absent when it is on its way.
    virtual void add(const UNNotificationRequest& request,
        std::function<void(const std::optional<NSError>& error)> completion) = 0;
};

} // namespace platform
