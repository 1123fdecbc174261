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

bool showsTheVehiclesPage(AppProcess& app, const DemoServiceProcess& service)
{
    return app.waitForPage()
        && eventually([&] { return !service.requests("/online/api/vehicles").empty(); })
        && service.requests("/online").size() == 1 && service.requests("/online/api/fuel").empty();
}

struct Ending {
    const char* name;
    void (*end)(AppProcess&);

    friend void PrintTo(const Ending& ending, std::ostream* stream) { *stream << ending.name; }
};

void closeWindow(AppProcess& app)
{
    if (const auto window = app.waitForWindow())
        window->close();
}

template <int number> void sendSignal(AppProcess& app)
{
    app.process().signal(number);
}

constexpr Ending orderlyEndings[] = {
    {"closingTheWindow", closeWindow},
    {"SIGTERM", sendSignal<SIGTERM>},
    {"SIGINT", sendSignal<SIGINT>},
    {"SIGHUP", sendSignal<SIGHUP>},
};

} // namespace

class Restore : public testing::TestWithParam<Ending> { };

TEST_P(Restore, tabsComeBackAfterAnOrderlyEnd)
{
    DemoServiceProcess service;
    SavedSettings::write(untidyTabs);
    {
        AppProcess app(service);
        EXPECT_TRUE(showsTheVehiclesPage(app, service));
        GetParam().end(app);
        EXPECT_EQ(app.process().waitForExit(), 0);
    }
    EXPECT_EQ(SavedSettings::read()["vl.open.routes"], tidyRoutes);
    EXPECT_EQ(SavedSettings::read()["vl.open.routes.active"], 1);

    service.forgetRequests();
    AppProcess app(service);
    EXPECT_TRUE(showsTheVehiclesPage(app, service));
}

INSTANTIATE_TEST_SUITE_P(, Restore, testing::ValuesIn(orderlyEndings),
    [](const auto& test) { return std::string(test.param.name); });

TEST(RestoreAfterKill, whatWasSavedBeforeComesBack)
{
    DemoServiceProcess service;
    SavedSettings::write(untidyTabs);
    {
        AppProcess app(service);
        EXPECT_TRUE(showsTheVehiclesPage(app, service));
        sendSignal<SIGKILL>(app);
        EXPECT_EQ(app.process().waitForExit(), -SIGKILL);
    }
    EXPECT_EQ(SavedSettings::read()["vl.open.routes"], untidyTabs["vl.open.routes"]);

    service.forgetRequests();
    AppProcess app(service);
    EXPECT_TRUE(showsTheVehiclesPage(app, service));
}

} // namespace desktop
