#include "location/LocationScripts.h"

#include "platform/simulated/SimulatedPlatform.h"
#include "web/WebModel.h"

#include <gtest/gtest.h>
#include <limits>

namespace velmaro {

TEST(LocationHandOff, hasOneScriptForEachPlaceAndKind)
{
    EXPECT_EQ(LocationScripts::handOffLocation(
                  StationKind::evstations, {48.858844, -2.5, "a\\'b \"\u2028"}),
        "(function(){\n"
        "  window.__vlOverrideLocation = { lat: 48.858844, lng: -2.5, label: 'a\\\\\\'b "
        "\"\u2028' };\n"
        "  if (typeof showPage === 'function') { showPage('evstations'); } else { location.href = "
        "'/online#evstations'; }\n"
        "})();");
}

TEST(LocationHandOff, writesTheShortestNumeralThatReadsBack)
{
    struct Case {
        double number;
        std::string numeral;
    };
    const Case cases[] = {
        {0, "0.0"},
        {-0.0, "-0.0"},
        {8, "8.0"},
        {-180, "-180.0"},
        {48.858844, "48.858844"},
        {0.1 + 0.2, "0.30000000000000004"},
        {0.0001, "0.0001"},
        {-0.00012345, "-0.00012345"},
        {0.00005, "5e-05"},
        {-0.000012345, "-1.2345e-05"},
        {std::numeric_limits<double>::denorm_min(), "5e-324"},
        {1e20, "100000000000000000000.0"},
    };
    for (const auto& [number, numeral] : cases) {
        const auto script =
            LocationScripts::handOffLocation(StationKind::gas, {number, number, ""});
        EXPECT_NE(
            script.find("{ lat: " + numeral + ", lng: " + numeral + ", label"), std::string::npos)
            << script;
    }
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
