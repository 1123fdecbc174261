#pragma once

#include <map>
#include <string>

namespace platform {

// The user has clicked a notification, of this run or of an earlier one. It is a plain value.
struct UNNotificationResponse {
    std::map<std::string, std::string> userInfo; // of the notification's content
};

} // namespace platform
