#pragma once

#include "platform/usernotifications/UNMutableNotificationContent.h"

#include <string>

namespace platform {

// A notification to be shown at once. It takes the place of a shown one with the same identifier.
// It is a plain value, which the center copies.
struct UNNotificationRequest {
    std::string identifier;
    UNMutableNotificationContent content;

    bool operator==(const UNNotificationRequest&) const = default;
};

} // namespace platform
