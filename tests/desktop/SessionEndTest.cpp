// How the desktop session ends, and what the application makes of it.

#include "harness/AppProcess.h"
#include "harness/FakeService.h"
#include "harness/SavedSettings.h"

#include <gtest/gtest.h>

namespace desktop {

namespace {

// Saving tidies the routes up, which tells a file that was saved from one that was left alone.
const nlohmann::json untidyRoutes = {"drives", "  ", " vehicles "};
const nlohmann::json tidyRoutes = {"drives", "vehicles"};

void saveUntidyRoutes()
{
    SavedSettings::write({{"vl.open.routes", untidyRoutes}});
}

nlohmann::json savedRoutes()
{
    return SavedSettings::read()["vl.open.routes"];
}

constexpr auto clientPath = "/org/gnome/SessionManager/Client1";

} // namespace

TEST(SessionEnd, theTabsAreSavedWhenTheSessionEnds)
{
    saveUntidyRoutes();
    // The desktop's session manager asks its clients before it ends the session.
    FakeService manager(G_BUS_TYPE_SESSION, "org.gnome.SessionManager",
        {
            {"RegisterClient",
                [](const auto& call) { call.answer(g_variant_new("(o)", clientPath)); }},
            {"EndSessionResponse", FakeService::answering()},
            {"UnregisterClient", FakeService::answering()},
        });
    const auto tellClient = [&](const char* signal) {
        manager.emit(
            clientPath, "org.gnome.SessionManager.ClientPrivate", signal, g_variant_new("(u)", 0));
    };
    AppProcess app;
    ASSERT_TRUE(manager.isCalled("RegisterClient"));
    ASSERT_TRUE(app.waitForWindow());

    tellClient("QueryEndSession");
    ASSERT_TRUE(manager.isCalled("EndSessionResponse"));
    EXPECT_EQ(savedRoutes(), untidyRoutes) << "the user may still call it off";
    tellClient("EndSession");
    ASSERT_TRUE(manager.isCalled("EndSessionResponse", 2));
    EXPECT_TRUE(manager.isCalled("UnregisterClient"));
    EXPECT_EQ(app.process().waitForExit(), 0);
    EXPECT_EQ(savedRoutes(), tidyRoutes);
}

TEST(SessionEnd, theTabsAreSavedWhenTheDisplayServerEnds)
{
    saveUntidyRoutes();
    DemoServiceProcess service;
    Process server({"Xvfb", "-displayfd", "1", "-screen", "0", "1000x700x24"});
    ASSERT_TRUE(eventually([&] { return server.output().ends_with('\n'); }));
    auto environment = service.clientEnvironment();
    environment["DISPLAY"] = ":" + server.output().substr(0, server.output().find('\n'));
    AppProcess app({}, environment);
    ASSERT_TRUE(eventually([&] { return !service.requests("/online").empty(); }));
    server.signal(SIGTERM);
    EXPECT_NE(app.process().waitForExit(), std::nullopt);
    EXPECT_EQ(savedRoutes(), tidyRoutes);
}

} // namespace desktop
