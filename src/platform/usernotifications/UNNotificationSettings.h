#pragma once

#include "platform/usernotifications/UNAuthorizationStatus.h"

namespace platform {

// What the user has settled about notifications, at the moment of asking.
struct UNNotificationSettings {
    UNAuthorizationStatus authorizationStatus = UNAuthorizationStatus::notDetermined;
};

} // namespace platform
