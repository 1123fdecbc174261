// The location picker in the real window, from the pills of the toolbar to the page that gets the
// place.

#include "harness/FakeGeoClue.h"
#include "harness/SavedSettings.h"
#include "harness/SignedInTest.h"
#include "harness/UserInput.h"

#include <gtest/gtest.h>

namespace desktop {

namespace {

constexpr auto gasPill = "Find gas stations";
constexpr auto chargingPill = "Find charging stations";
constexpr auto trafficPill = "Traffic alerts";
constexpr auto currentLocation = "Use my current location";

struct Places : SignedInTest {
    void SetUp() override
    {
        saveTabs({"drives"});
        auto environment = service.clientEnvironment();
        environment["VELMARO_GEOCODER"] = service.origin();
        app.emplace(std::vector<std::string>(), environment);
        ASSERT_TRUE(app->waitForPage());
        ASSERT_TRUE(app->shows(gasPill));
    }

    // Whether the page looks for something around a place, as its address says.
    bool looksAround(const std::string& query)
    {
        return eventually([&] {
            const auto requests = service.requests("/online/api/stations");
            return !requests.empty() && requests.back().query.find(query) != std::string::npos;
        });
    }

    FakeGeoClue geoClue{FakeGeoClue::Manner::grants, {{47.25, -31.5, 20}}};
};

} // namespace

TEST_F(Places, areTypedChosenAndHandedToThePageAsTheyAreCalled)
{
    ASSERT_TRUE(app->press(gasPill));
    ASSERT_TRUE(app->shows(currentLocation));
    UserInput::type("sailor");
    ASSERT_TRUE(app->shows("Sailor's \"Half \\ Moon\", Quayside, Ellery, Ellery Islands"));
    UserInput::press("Return");
    EXPECT_TRUE(looksAround("kind=gas&"));
    EXPECT_TRUE(looksAround("near=Sailor%27s%20%22Half%20%5C%20Moon%22%20%E2%80%94%20Quayside"));
    EXPECT_TRUE(app->loses("Clear"));

    ASSERT_TRUE(app->press(chargingPill));
    ASSERT_TRUE(app->shows(currentLocation));
    UserInput::type("harbour");
    EXPECT_TRUE(app->press("Harbour Parade, Ellery, Ellery Islands"));
    EXPECT_TRUE(looksAround("kind=evstations&"));
    EXPECT_TRUE(looksAround("near=Harbour%20Parade%20%E2%80%94%20Ellery"));
}

TEST_F(Places, mayBeWhereTheComputerIs)
{
    ASSERT_TRUE(app->press(trafficPill));
    ASSERT_TRUE(app->press(currentLocation));
    ASSERT_TRUE(app->press("Allow"));
    EXPECT_TRUE(looksAround("kind=traffic&lat=47.25&lng=-31.5&"));
    EXPECT_TRUE(app->loses(currentLocation));
}

TEST_F(Places, areForgottenByClearEscapeAndTheirPill)
{
    ASSERT_TRUE(app->press(gasPill));
    ASSERT_TRUE(app->shows(currentLocation));
    UserInput::type("harbour");
    ASSERT_TRUE(app->loses(currentLocation));
    ASSERT_TRUE(app->press("Clear"));
    EXPECT_TRUE(app->shows(currentLocation));
    UserInput::press("Escape");
    EXPECT_TRUE(app->loses(currentLocation));
    ASSERT_TRUE(app->press(trafficPill));
    ASSERT_TRUE(app->shows(currentLocation));
    ASSERT_TRUE(app->press(trafficPill)); // closes
    EXPECT_TRUE(app->loses(currentLocation));
}

} // namespace desktop
