// What the demo's pages tell about their user, from the welcome to signing out, and what a relaunch
// makes of it.

#include "harness/AppProcess.h"
#include "harness/SavedSettings.h"
#include "harness/UserInput.h"

#include <fstream>
#include <gtest/gtest.h>

namespace desktop {

namespace {

using Keys = std::vector<std::string>;

struct Session : testing::Test {
    // Nobody is asked about notifications.
    Session()
    {
        SavedSettings::write(nlohmann::json::object());
        SavedSettings::writePermissions({{"notificationsAllowed", false}});
    }

    static void press(const Keys& keys)
    {
        for (const auto& key : keys)
            UserInput::press(key);
    }

    // Signs in on the page that asks for it, whose first control does that. Afterwards the keyboard
    // is between the head of the page and its content, right behind "New tab" and "Sign out".
    bool signIn(AppProcess& app) const
    {
        app.pressFirstControlOfPage();
        return service.isAsked("/online/api/dashboard") && app.waitForPage() && eventually(hasUser);
    }

    static bool hasUser() { return SavedSettings::read().contains("vl.user.identity"); }

    static void quit(AppProcess& app)
    {
        app.waitForWindow()->close();
        EXPECT_EQ(app.process().waitForExit(), 0);
    }

    DemoServiceProcess service;
};

} // namespace

TEST_F(Session, welcomesSignsInAndOpensATab)
{
    {
        AppProcess app(service);
        ASSERT_TRUE(app.waitForPage());
        press({"Return", "Return", "Return", "Return"}); // through the tour
        ASSERT_TRUE(service.isAsked("/online"));
        ASSERT_TRUE(app.waitForPage());
        EXPECT_EQ(SavedSettings::read()["vl.onboarding.completed"], true);

        ASSERT_TRUE(signIn(app));
        press({"shift+Tab", "shift+Tab", "Return"});
        ASSERT_TRUE(service.isAsked("/online", 2)); // by the new tab
        quit(app);
    }
    EXPECT_EQ(SavedSettings::read()["vl.open.routes"], nlohmann::json({"dashboard", "newtab"}));
    EXPECT_EQ(SavedSettings::read()["vl.open.routes.active"], 1);
    service.forgetRequests();
    AppProcess app(service);
    ASSERT_TRUE(app.waitForPage());
    EXPECT_TRUE(service.requests("/online/welcome.php").empty());
}

TEST_F(Session, signsOutAndLeavesOneTab)
{
    SavedSettings::write({{"vl.open.routes", {"dashboard", "fuel"}}});
    AppProcess app(service);
    ASSERT_TRUE(app.waitForPage());
    ASSERT_TRUE(signIn(app));
    press({"shift+Tab", "Return"});
    EXPECT_TRUE(eventually([] { return !hasUser(); }));
    quit(app);
    EXPECT_EQ(SavedSettings::read()["vl.open.routes"], nlohmann::json({"dashboard"}));
}

} // namespace desktop
