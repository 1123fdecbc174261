// The strip of tabs in the hands of somebody with a mouse and a keyboard.

#include "harness/AppProcess.h"
#include "harness/SavedCookies.h"
#include "harness/SavedSettings.h"
#include "harness/UserInput.h"

#include <csignal>
#include <gtest/gtest.h>

namespace desktop {

namespace {

using Routes = std::vector<std::string>;

struct TabStrip : testing::Test {
    void launch(const Routes& routes, int active)
    {
        SavedCookies::signIn("Robin", "Alder");
        SavedSettings::write({{"vl.open.routes", routes}, {"vl.open.routes.active", active},
            {"vl.onboarding.shown", true}});
        SavedSettings::writePermissions({{"notificationsAllowed", false}});
        app.emplace(service);
        ASSERT_TRUE(app->waitForPage());
        for (const auto& route : routes) // the others are loaded ahead
            ASSERT_TRUE(service.isAsked("/online/api/" + route)) << route;
    }

    Point tab(const std::string& title)
    {
        const auto place = app->place(title);
        EXPECT_TRUE(place) << title;
        return place.value_or(Point{});
    }

    // Ends the program. What it had open is saved then.
    Routes routesAtTheEnd()
    {
        app->process().signal(SIGTERM);
        EXPECT_EQ(app->process().waitForExit(), 0);
        return SavedSettings::read()["vl.open.routes"];
    }

    DemoServiceProcess service;
    std::optional<AppProcess> app;
};

} // namespace

TEST_F(TabStrip, isArrangedWithTheMouse)
{
    launch({"drives", "vehicles", "fuel"}, 1);
    service.forgetRequests();
    const Point first = tab("Drives"), last = tab("Fuel");
    const auto isMoved = [&] { return tab("Fuel") == first; };
    EXPECT_TRUE(eventually([&] {
        UserInput::drag(last, first); // is nothing when it ends before the program has seen it
        return eventually(isMoved, std::chrono::seconds(2));
    }));
    EXPECT_TRUE(service.requests("/online/api/fuel").empty()) << "a page that moves stays";

    UserInput::click(last.x, last.y, UserInput::middleButton); // Vehicles are there now, and active
    EXPECT_TRUE(app->loses("Vehicles"));
    ASSERT_TRUE(app->press("Close Tab"));
    EXPECT_TRUE(app->loses("Drives"));
    ASSERT_TRUE(app->press("New Tab"));
    EXPECT_TRUE(app->shows("New tab"));
    EXPECT_EQ(routesAtTheEnd(), (Routes{"fuel", "newtab"}));
}

TEST_F(TabStrip, losesNoKeyOfAFastHand)
{
    launch({"drives"}, 0);
    UserInput::press("ctrl+t", 10);
    UserInput::press("ctrl+w", 10);
    EXPECT_TRUE(
        eventually([&] { return AccessibleObject::count(app->process().pid(), "tab") == 1; }));
    EXPECT_EQ(routesAtTheEnd(), Routes{"drives"});
}

} // namespace desktop
