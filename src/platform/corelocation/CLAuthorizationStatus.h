#pragma once

namespace platform {

// Whether the application may know where the user is. A platform may report further values. The
// decision holds for the whole application.
enum class CLAuthorizationStatus {
    notDetermined = 0, // the user has not been asked yet
    restricted = 1, // out of the user's hands
    denied = 2,
    authorizedAlways = 3,
    authorizedWhenInUse = 4,
};

} // namespace platform
