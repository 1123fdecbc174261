#include "location/StationKind.h"

namespace velmaro {

namespace {

struct Row {
    std::string_view rawValue;
    StationKindAppearance appearance;
};

// In the order of the enumerators.
constexpr Row rows[] = {
    {
        .rawValue = "gas",
        .appearance =
            {
                .icon = "fuelpump.fill",
                .title = "Find Gas Stations",
                .explanation =
                    "Search for an address or use your location to find nearby gas stations.",
            },
    },
    {
        .rawValue = "evstations",
        .appearance =
            {
                .icon = "bolt.car.fill",
                .title = "Find Charging Stations",
                .explanation =
                    "Search for an address or use your location to find nearby charging stations.",
            },
    },
    {
        .rawValue = "traffic",
        .appearance =
            {
                .icon = "exclamationmark.triangle.fill",
                .title = "Traffic Alerts",
                .explanation =
                    "Search for an address or use your location to see traffic alerts in the area.",
            },
    },
};

const Row& rowOf(StationKind kind)
{
    return rows[static_cast<std::size_t>(kind)];
}

} // namespace

std::string_view rawValue(StationKind kind)
{
    return rowOf(kind).rawValue;
}

const StationKindAppearance& appearance(StationKind kind)
{
    return rowOf(kind).appearance;
}

} // namespace velmaro
