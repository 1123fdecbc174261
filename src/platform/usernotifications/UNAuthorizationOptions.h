#pragma once

#include <cstdint>

namespace platform {

// What a permission to notify is for; bits of a set.
using UNAuthorizationOptions = std::uint32_t;

inline constexpr UNAuthorizationOptions unAuthorizationOptionBadge = 1;
inline constexpr UNAuthorizationOptions unAuthorizationOptionSound = 2;
inline constexpr UNAuthorizationOptions unAuthorizationOptionAlert = 4;

} // namespace platform
