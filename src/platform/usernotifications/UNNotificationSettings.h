#pragma once

#include "platform/usernotifications/UNAuthorizationStatus.h"

namespace platform {

// What the user has settled about notifications, at the moment of asking. It is a plain value,
// which does not follow later decisions.
struct UNNotificationSettings {
    UNAuthorizationStatus authorizationStatus = UNAuthorizationStatus::notDetermined;
};

} // namespace platform
