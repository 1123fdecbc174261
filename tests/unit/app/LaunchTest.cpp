#include "RunningApp.h"
#include "web/PageScripts.h"

#include <gtest/gtest.h>

namespace PageScripts = velmaro::PageScripts;
using Strings = std::vector<std::string>;

namespace {

struct Launch : RunningApp {
    explicit Launch(Settings settings = {}) { launch(std::move(settings)); }

    simulated::SimulatedApplication& application() { return platform.application(); }
};

RunningApp::Settings threeTabs(std::int64_t active)
{
    return {{"vl.open.routes", Strings{"drives", "fuel", "vehicles"}},
        {"vl.open.routes.active", active}};
}

} // namespace

TEST(Launching, opensOneWindowOnTheWelcomePage)
{
    Launch launch;
    auto& window = launch.application().window();
    EXPECT_EQ(launch.application().windows().size(), 1u);
    EXPECT_EQ(window.title(), "Velmaro Online");
    EXPECT_EQ(window.frame().size.width, 1224);
    EXPECT_FALSE(platform::NSWindow::allowsAutomaticWindowTabbing());
    EXPECT_TRUE(launch.platform.userNotificationCenter().hasDelegate());
    EXPECT_EQ(launch.webView()->loads.at(0).url.absoluteString(),
        "https://velmaro.example/online/welcome.php");
}

TEST(Launching, showsAndTouchesOnlyTheActiveTab)
{
    Launch launch(threeTabs(2));
    for (const auto& tab : launch.tabs()->tabs())
        tab->isLoadedAhead = true;
    launch.settle();
    std::size_t untouched = 0;
    for (const auto* group : launch.application().window().content().findAll<ui::GroupNode>()) {
        const auto& node = *group->node<ui::GroupNode>();
        untouched += !node.allowsHitTesting && node.opacity == 0;
    }
    EXPECT_EQ(untouched, 2u);
}

TEST(Terminating, savesTheTabsHoweverItComesButNotAtACrash)
{
    using End = void (*)(Launch&);
    const std::pair<End, bool> cases[] = {
        {[](Launch& launch) { launch.application().simulateCloseWindow(); }, true},
        {[](Launch& launch) { launch.application().simulateQuit(); }, true},
        {[](Launch&) {}, false}, // a crash
    };
    for (const auto& [end, saves] : cases) {
        Launch launch(threeTabs(2));
        launch.webView()->simulateMessage(
            "routeBridge", platform::Value::Object{{"page", "charging"}});
        launch.tabs()->nextTab();
        launch.settle();
        end(launch);

        EXPECT_EQ(launch.application().hasTerminated(), saves);
        const auto routes = launch.platform.userDefaults().stringArray("vl.open.routes").value();
        EXPECT_EQ(routes.back(), saves ? "charging" : "vehicles");
        EXPECT_EQ(launch.platform.userDefaults().integer("vl.open.routes.active"), saves ? 0 : 2);
        EXPECT_EQ(launch.tabs() == nullptr, saves) << "the model goes with its window";
    }
}

TEST(DuplicateWindows, areClosedShortlyAfterLaunch)
{
    Launch launch;
    auto& application = launch.application();
    auto& panel = application.simulateBareWindow({.title = "panel", .canBecomeMainWindow = false});
    auto& unready = application.simulateBareWindow({.title = "unready", .hasContentView = false});
    application.simulateNewWindow();
    launch.platform.mainQueue().advance(0.34);
    EXPECT_EQ(application.windows().size(), 4u);

    launch.platform.mainQueue().advance(0.02);
    ASSERT_EQ(application.windows().size(), 3u);
    EXPECT_EQ(&application.window(1), &panel);
    EXPECT_EQ(&application.window(2), &unready);
}

TEST(Reopening, bringsAHiddenWindowForward)
{
    Launch launch;
    EXPECT_TRUE(launch.application().simulateReopen());
    launch.application().window().simulateMiniaturize();
    EXPECT_FALSE(launch.application().simulateReopen());
    EXPECT_TRUE(launch.application().window().isVisible());
}

TEST(OpeningAnAddress, reachesThePageOfTheActiveTab)
{
    Launch launch(threeTabs(0));
    launch.tabs()->nextTab();
    launch.settle();
    launch.application().simulateOpenURL("velmaro://page/reports");
    launch.application().simulateOpenURL("velmaro://drive/+007");
    EXPECT_TRUE(launch.webView(0)->scripts.empty());
    EXPECT_EQ(launch.webView(1)->scripts,
        (Strings{PageScripts::showRoute("reports"),
            PageScripts::showRouteAndCall("drives", "viewDriveDetail", "7")}));
}
