#pragma once

#include <cstdint>

namespace platform {

// How a notification shows while its application is in front; bits of a set. With none it does not
// show at all.
using UNNotificationPresentationOptions = std::uint32_t;

inline constexpr UNNotificationPresentationOptions unNotificationPresentationOptionSound = 2;
inline constexpr UNNotificationPresentationOptions unNotificationPresentationOptionBanner = 16;

} // namespace platform
