#pragma once

namespace platform {

// Whether the application may post notifications.
enum class UNAuthorizationStatus { notDetermined, denied, authorized, provisional };

} // namespace platform
