#pragma once

#include <map>
#include <optional>
#include <string>

namespace platform {

// What a notification makes heard.
enum class UNNotificationSound { defaultSound };

// What a notification says. Texts are plain. It is a plain value.
struct UNMutableNotificationContent {
    std::string title = {};
    std::string body = {};
    std::optional<UNNotificationSound> sound = {}; // absent: silent
    std::map<std::string, std::string> userInfo = {}; // comes back with the click

    bool operator==(const UNMutableNotificationContent&) const = default;
};

} // namespace platform
