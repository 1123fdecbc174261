// What the demo's pages tell about their user, from the welcome to a new tab, and what a relaunch
// makes of it.

#include "harness/AppProcess.h"
#include "harness/SavedSettings.h"
#include "harness/UserInput.h"

#include <gtest/gtest.h>

namespace desktop {

TEST(Session, welcomesSignsInAndOpensATab)
{
    SavedSettings::write(nlohmann::json::object());
    SavedSettings::writePermissions({{"notificationsAllowed", false}}); // nobody is asked
    DemoServiceProcess service;
    {
        AppProcess app(service);
        ASSERT_TRUE(app.waitForPage());
        for (int step = 0; step < 4; ++step) // of the tour
            UserInput::press("Return");
        ASSERT_TRUE(service.isAsked("/online"));
        ASSERT_TRUE(app.waitForPage());
        EXPECT_EQ(SavedSettings::read()["vl.onboarding.completed"], true);

        app.pressFirstControlOfPage(); // signs in
        ASSERT_TRUE(service.isAsked("/online/api/dashboard"));
        ASSERT_TRUE(app.waitForPage());
        ASSERT_TRUE(eventually([] { return SavedSettings::read().contains("vl.user.identity"); }));
        // The keyboard is between the head of the page and its content, right behind "New tab" and
        // "Sign out".
        for (const auto* key : {"shift+Tab", "shift+Tab", "Return"})
            UserInput::press(key);
        ASSERT_TRUE(service.isAsked("/online", 2)); // by the new tab
        app.waitForWindow()->close();
        EXPECT_EQ(app.process().waitForExit(), 0);
    }
    EXPECT_EQ(SavedSettings::read()["vl.open.routes"], nlohmann::json({"dashboard", "newtab"}));
    EXPECT_EQ(SavedSettings::read()["vl.open.routes.active"], 1);
    service.forgetRequests();
    AppProcess app(service);
    ASSERT_TRUE(app.waitForPage());
    EXPECT_TRUE(service.requests("/online/welcome.php").empty());
}

} // namespace desktop
