#include "service/Stations.h"

#include "data/Random.h"

#include <algorithm>
#include <cmath>

namespace demo {

namespace {

using nlohmann::json;

json gasDetails(Random& random)
{
    const int opens = random.between(5, 7);
    return {
        {"petrol", std::round(random.between(1.69, 1.82) * 1000) / 1000},
        {"diesel", std::round(random.between(1.58, 1.70) * 1000) / 1000},
        {"hours", opens == 5 ? "Day and night" : "0" + std::to_string(opens) + ":00 to 22:00"},
    };
}

json chargingDetails(Random& random)
{
    constexpr int powers[] = {11, 22, 50, 150, 300};
    const int plugs = random.between(2, 8);
    return {
        {"power", random.oneOf(powers)},
        {"plugs", plugs},
        {"free", random.between(0, plugs)},
        {"price", std::round(random.between(0.33, 0.59) * 100) / 100},
    };
}

json trafficDetails(Random& random)
{
    constexpr const char* severities[] = {"Low", "Medium", "High"};
    return {
        {"severity", random.oneOf(severities)},
        {"delay", random.between(2, 18)},
        {"since", "0" + std::to_string(random.between(6, 9)) + ":15"},
    };
}

struct Kind {
    std::string_view name;
    std::string_view placeValue;
    json (*details)(Random&);
};

constexpr Kind kinds[] = {
    {"gas", "fuel", gasDetails},
    {"evstations", "charging_station", chargingDetails},
    {"traffic", "traffic", trafficDetails},
};

json stationsOf(const Kind& kind, Coordinate centre)
{
    Random random(kind.name.size());
    auto stations = json::array();
    for (const Place& place : placesOfValue(kind.placeValue)) {
        json station = kind.details(random);
        station["name"] = place.name;
        station["street"] = place.street;
        station["district"] = place.district;
        station["lat"] = place.latitude();
        station["lng"] = place.longitude();
        station["distance"] = kilometresBetween(place.coordinate(), centre);
        stations.push_back(std::move(station));
    }
    std::sort(stations.begin(), stations.end(), [](const json& first, const json& second) {
        return first["distance"] < second["distance"];
    });
    return stations;
}

} // namespace

json stationsAround(Coordinate centre, std::string_view kind)
{
    const auto* found = std::find_if(std::begin(kinds), std::end(kinds),
        [&](const Kind& candidate) { return candidate.name == kind; });
    return found == std::end(kinds) ? json::array() : stationsOf(*found, centre);
}

} // namespace demo
