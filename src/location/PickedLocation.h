#pragma once

#include <string>

namespace velmaro {

// A place that the user has picked, in degrees as the platform delivered them.
struct PickedLocation {
    double latitude = 0;
    double longitude = 0;
    std::string label; // what the page calls the place

    bool operator==(const PickedLocation&) const = default;
};

} // namespace velmaro
