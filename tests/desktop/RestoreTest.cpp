// Tabs come back at the next launch, as they were when the last one ended in an orderly way.

#include "harness/AppProcess.h"
#include "harness/SavedSettings.h"

#include <csignal>
#include <gtest/gtest.h>

namespace desktop {

namespace {

// Saving tidies the routes up, which tells a file that was saved from one that was left alone.
const nlohmann::json untidyTabs = {
    {"vl.open.routes", {"drives", "  ", " vehicles ", "fuel"}},
    {"vl.open.routes.active", 1},
};
const nlohmann::json tidyRoutes = {"drives", "vehicles", "fuel"};

// The other tabs may follow as soon as this one is complete.
bool opensTheVehiclesPageFirst(AppProcess& app, const DemoServiceProcess& service)
{
    if (!app.waitForPage() || !service.isAsked("/online/api/vehicles"))
        return false;
    for (const auto& request : service.requests()) {
        for (const char* page : {"drives", "vehicles", "fuel"}) {
            if (request.path == std::string("/online/api/") + page)
                return request.path.ends_with("vehicles");
        }
    }
    return false;
}

} // namespace

TEST(Restore, tabsAreSavedAtAnOrderlyEndAndComeBackAfterAnyEnd)
{
    struct Case {
        const char* name;
        std::optional<int> signal; // absent: the window is closed
    };
    const Case cases[] = {
        {"kill", SIGKILL},
        {"closed window", std::nullopt},
        {"SIGTERM", SIGTERM},
    };
    DemoServiceProcess service;
    for (const auto& [name, signal] : cases) {
        SCOPED_TRACE(name);
        SavedSettings::write(untidyTabs);
        service.forgetRequests();
        AppProcess app(service);
        EXPECT_TRUE(opensTheVehiclesPageFirst(app, service));
        if (signal)
            app.process().signal(*signal);
        else
            app.waitForWindow()->close();
        const bool isOrderly = signal != SIGKILL;
        EXPECT_EQ(app.process().waitForExit(), isOrderly ? 0 : -SIGKILL);
        const auto& routes = isOrderly ? tidyRoutes : untidyTabs["vl.open.routes"];
        EXPECT_EQ(SavedSettings::read()["vl.open.routes"], routes);
        EXPECT_EQ(SavedSettings::read()["vl.open.routes.active"], 1);
    }
    service.forgetRequests();
    AppProcess next(service);
    EXPECT_TRUE(opensTheVehiclesPageFirst(next, service));
}

} // namespace desktop
