// The processes of pages die at every stage of a tab's life: the window goes on, and the page comes
// back.

#include "harness/AccessibleObject.h"
#include "harness/AppProcess.h"
#include "harness/SavedCookies.h"
#include "harness/SavedSettings.h"
#include "harness/UserInput.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>

namespace desktop {

namespace {

constexpr auto data = "/online/api/"; // what the pages below ask for, by their routes

class WebProcessDeath : public testing::Test {
protected:
    WebProcessDeath() { SavedCookies::signIn("Robin", "Alder"); }

    DemoServiceProcess service;
};

// That of the pages: the oldest. The engine keeps a spare one, and would load the page again in
// that for it to die a second time, were both killed.
void killWebProcess(AppProcess& app)
{
    const auto processes = app.webProcesses();
    kill(*std::ranges::min_element(processes), SIGKILL);
}

bool hasTabs(AppProcess& app, int count)
{
    return eventually([&] { return AccessibleObject::count(app.process().pid(), "tab") == count; });
}

} // namespace

TEST_F(WebProcessDeath, atEveryStageLeavesAWindowThatIsUsable)
{
    struct Stage {
        const char* name;
        const char* route;
        std::function<bool(AppProcess&)> reach;
        const char* leave = nullptr; // the button that closes what was opened
    };
    const auto hasPage = [](auto& app) { return app.waitForPage(); };
    const Stage stages[] = {
        {"while the page loads", "drives", [&](auto&) { return service.isAsked("/online"); }},
        {"with the page", "drives", hasPage},
        {"while it searches", "drives",
            [&](auto& app) {
                if (!hasPage(app))
                    return false;
                UserInput::press("ctrl+f");
                UserInput::type("Ferry");
                return app.shows("Close");
            },
            "Close"},
        {"with the location picker", "fuel",
            [&](auto& app) {
                return hasPage(app) && app.press("Find gas stations")
                    && app.shows("Use my current location");
            },
            "Close"},
    };
    for (const auto& stage : stages) {
        SCOPED_TRACE(stage.name);
        SavedSettings::write(
            {{"vl.open.routes", {stage.route, "vehicles"}}, {"vl.onboarding.shown", true}});
        SavedSettings::writePermissions({{"notificationsAllowed", false}});
        service.forgetRequests();
        AppProcess app(service);
        ASSERT_TRUE(stage.reach(app));
        service.forgetRequests();

        killWebProcess(app);

        EXPECT_TRUE(service.isAsked(data + std::string(stage.route)));
        EXPECT_TRUE(!stage.leave || app.press(stage.leave));
        EXPECT_TRUE(app.waitForPage());
        EXPECT_TRUE(hasTabs(app, 2));
        UserInput::press("ctrl+t");
        EXPECT_TRUE(hasTabs(app, 3));
        EXPECT_TRUE(app.process().isRunning());
    }
}

} // namespace desktop
