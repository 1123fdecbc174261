#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace demo {

struct Coordinate {
    double latitude = 0; ///< In degrees.
    double longitude = 0; ///< In degrees.
};

/// Ellery, a city on an island that is on no other map.
inline constexpr Coordinate cityCentre{.latitude = 47.31, .longitude = -31.42};

/// One invented place.
struct Place {
    std::string_view name;
    std::string_view key; ///< What sort of thing it is, as map data names it: "amenity", "highway"…
    std::string_view value; ///< Which one of the sort: "fuel", "residential"…
    std::string_view street; ///< Empty for streets themselves and for towns.
    std::string_view district; ///< Empty for towns.
    double east = 0; ///< Kilometres from the centre.
    double north = 0; ///< Kilometres from the centre.

    double latitude() const;
    double longitude() const;
    Coordinate coordinate() const { return {latitude(), longitude()}; }
};

/// All places, the more important ones first.
std::span<const Place> gazetteer();

std::vector<Place> placesOfValue(std::string_view value);

/// Good for the few kilometres that matter here.
double kilometresBetween(Coordinate, Coordinate);

} // namespace demo
