// The strip of tabs in the hands of somebody with a mouse and a keyboard.

#include "harness/SavedSettings.h"
#include "harness/SignedInTest.h"
#include "harness/UserInput.h"

#include <csignal>
#include <gtest/gtest.h>

namespace desktop {

namespace {

struct TabStrip : SignedInTest {
    Point tab(const std::string& title)
    {
        const auto place = app->place(title);
        EXPECT_TRUE(place) << title;
        return place.value_or(Point{});
    }
};

} // namespace

TEST_F(TabStrip, isArrangedWithTheMouse)
{
    launch({"drives", "vehicles", "fuel"}, 1);
    ASSERT_TRUE(service.isAsked("/online/api/drives")); // the others are loaded ahead
    ASSERT_TRUE(service.isAsked("/online/api/fuel"));
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

    UserInput::press("ctrl+t", 10); // a fast hand, of which no key is lost
    UserInput::press("ctrl+w", 10);
    const auto tabs = [&] { return AccessibleObject::count(app->process().pid(), "tab"); };
    EXPECT_TRUE(eventually([&] { return tabs() == 2; }));
    app->process().signal(SIGTERM);
    EXPECT_EQ(app->process().waitForExit(), 0);
    EXPECT_EQ(SavedSettings::read()["vl.open.routes"], nlohmann::json({"fuel", "newtab"}));
}

} // namespace desktop
