#pragma once

namespace platform {

// A place on the globe (WGS 84), in degrees: north and east are positive. It is a plain value for
// any thread.
struct CLLocationCoordinate2D {
    double latitude = 0;
    double longitude = 0;

    bool operator==(const CLLocationCoordinate2D&) const = default;
};

// Where the computer is, as far as the location service knows.
struct CLLocation {
    CLLocationCoordinate2D coordinate;
    double horizontalAccuracy = -1; // radius of uncertainty in metres; negative when unknown
};

} // namespace platform
