#include "location/StationKind.h"

#include <gtest/gtest.h>

namespace velmaro {

TEST(StationKind, isKnownByItsNameOnly)
{
    for (const auto kind : {StationKind::gas, StationKind::evstations, StationKind::traffic})
        EXPECT_EQ(stationKind(rawValue(kind)), kind);
    for (const auto* name : {"", "Gas", "gas ", "charging"})
        EXPECT_EQ(stationKind(name), std::nullopt) << name;
}

TEST(StationKind, trafficIsNotPresentedAsStations)
{
    const auto& traffic = appearance(StationKind::traffic);
    EXPECT_EQ(traffic.icon, "exclamationmark.triangle.fill");
    EXPECT_EQ(traffic.title, "Traffic Alerts");
    EXPECT_EQ(traffic.explanation.find("stations"), std::string_view::npos);
}

} // namespace velmaro
