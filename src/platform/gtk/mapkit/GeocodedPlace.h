#pragma once

#include "platform/corelocation/CLLocation.h"

#include <optional>
#include <string>
#include <vector>

namespace gtk {

// A place as a Photon service describes it, put into words.
struct GeocodedPlace {
    std::string title; // never empty; one line, like the subtitle
    std::string subtitle;
    platform::CLLocationCoordinate2D coordinate;
    bool isAddress = false; // a house, a street, a town…; else a point of interest

    // Reads the places in an answer, in its order. Entries without a name or without a place on the
    // globe are left out, and so are those that read like an earlier one. Absent if the answer is
    // not a list of places.
    static std::optional<std::vector<GeocodedPlace>> fromAnswer(const std::string& json);

    bool operator==(const GeocodedPlace&) const = default;
};

} // namespace gtk
