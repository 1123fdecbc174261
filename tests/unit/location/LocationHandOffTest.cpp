#include "location/LocationScripts.h"

#include "location/StationKind.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "web/WebModel.h"

#include <gtest/gtest.h>

namespace velmaro {

TEST(StationKind, isKnownByItsNameOnly)
{
    for (const auto kind : {StationKind::gas, StationKind::evstations, StationKind::traffic})
        EXPECT_EQ(stationKind(rawValue(kind)), kind);
    for (const auto* name : {"", "Gas", "gas ", "charging"})
        EXPECT_EQ(stationKind(name), std::nullopt) << name;
}

TEST(LocationHandOff, runsOncePerPickAndOnlyInAWebView)
{
    simulated::SimulatedPlatform platform;
    WebModel model("dashboard");
    const PickedLocation first{1, 2, "first"}, second{3, 4, "second"};
    model.handOffLocation(StationKind::gas, first);

    const auto webView =
        std::make_shared<simulated::SimulatedWebView>(platform::WKWebViewConfiguration());
    model.webView = webView;
    model.handOffLocation(StationKind::gas, first);
    model.handOffLocation(StationKind::traffic, second);
    const std::vector<std::string> expected = {
        LocationScripts::handOffLocation(StationKind::gas, first),
        LocationScripts::handOffLocation(StationKind::traffic, second),
    };
    EXPECT_EQ(webView->scripts, expected);
    EXPECT_EQ(model.currentRoute(), "dashboard");
}

} // namespace velmaro
