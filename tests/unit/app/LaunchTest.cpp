#include "RunningApp.h"
#include "web/PageScripts.h"

#include <gtest/gtest.h>

using velmaro::TabbedAppModel;
namespace PageScripts = velmaro::PageScripts;
using Strings = std::vector<std::string>;

namespace {

struct Launch : RunningApp {
    explicit Launch(Settings settings = {}) { launch(std::move(settings)); }

    simulated::SimulatedApplication& application() { return platform.application(); }

    // The addresses first loaded, in the order in which web views were made.
    Strings addresses() const
    {
        Strings addresses;
        for (const auto& webView : platform.webViews())
            addresses.push_back(webView.lock()->loads.at(0).url.absoluteString());
        return addresses;
    }
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
    EXPECT_EQ(launch.addresses(), Strings{"https://velmaro.example/online/welcome.php"});
    EXPECT_TRUE(launch.platform.logLines.empty());
}

TEST(Launching, showsAndTouchesOnlyTheActiveTab)
{
    Launch launch(threeTabs(0));
    for (const auto& tab : launch.tabs()->tabs())
        tab->isLoadedAhead = true;
    launch.settle();
    const auto layers = [&] {
        std::string text;
        for (const auto* group : launch.application().window().content().findAll<ui::GroupNode>()) {
            const auto& node = *group->node<ui::GroupNode>();
            const bool isOnlyLayer = node.transition == ui::Transition() && !node.onOpenURL
                && node.focusedValues.isEmpty();
            if (isOnlyLayer && group->describe().find("hosted") != std::string::npos)
                text += node.allowsHitTesting && node.opacity == 1 ? '+'
                    : node.opacity == 0                            ? '-'
                                                                   : '?';
        }
        return text;
    };
    EXPECT_EQ(layers(), "+--");
    launch.tabs()->activeIndex = 2;
    launch.settle();
    EXPECT_EQ(layers(), "--+");
}

TEST(Terminating, savesTheTabsHoweverItComesButNotAtACrash)
{
    struct Case {
        const char* name;
        std::function<void(Launch&)> end;
        bool saves;
    };
    const Case cases[] = {
        {"window closed", [](auto& launch) { launch.application().simulateCloseWindow(); }, true},
        {"quit", [](auto& launch) { launch.application().simulateQuit(); }, true},
        {"last tab closed",
            [](auto& launch) {
                launch.tabs()->keepOnlyActiveTab();
                launch.tabs()->closeTab(0);
                launch.settle();
            },
            true},
        {"crash", [](auto&) {}, false},
    };
    for (const auto& [name, end, saves] : cases) {
        SCOPED_TRACE(name);
        Launch launch(threeTabs(2));
        launch.webView()->simulateMessage(
            "routeBridge", platform::Value::Object{{"page", "charging"}});
        launch.settle();
        end(launch);

        EXPECT_EQ(launch.application().hasTerminated(), saves);
        const auto routes = launch.platform.userDefaults().stringArray("vl.open.routes").value();
        EXPECT_EQ(routes.back(), saves ? "charging" : "vehicles");
        EXPECT_EQ(launch.platform.userDefaults().writes().size(), saves ? 2u : 0u);
        EXPECT_EQ(launch.tabs() == nullptr, saves) << "the model goes with its window";
    }
}

TEST(Running, endsWithTheSession)
{
    velmaro::VelmaroOnlineApp app;
    simulated::SimulatedPlatform platform;
    bool hasRun = false;
    platform.application().prepareSession([&] { hasRun = TabbedAppModel::shared() != nullptr; });
    EXPECT_EQ(app.run(), 0);
    EXPECT_TRUE(hasRun);
    EXPECT_TRUE(platform.application().hasTerminated());
}

TEST(DuplicateWindows, areClosedShortlyAfterLaunch)
{
    Launch launch;
    auto& application = launch.application();
    auto& panel = application.simulateBareWindow({.title = "panel", .canBecomeMainWindow = false});
    auto& unready = application.simulateBareWindow({.title = "unready", .hasContentView = false});
    application.simulateNewWindow();
    application.simulateNewWindow();
    launch.platform.mainQueue().advance(0.34);
    EXPECT_EQ(application.windows().size(), 5u);

    launch.platform.mainQueue().advance(0.02);
    ASSERT_EQ(application.windows().size(), 3u);
    EXPECT_EQ(application.window(0).title(), "Velmaro Online");
    EXPECT_EQ(&application.window(1), &panel);
    EXPECT_EQ(&application.window(2), &unready);
    EXPECT_FALSE(application.hasTerminated());
}

TEST(DuplicateWindows, openedLaterStay)
{
    Launch launch;
    launch.platform.mainQueue().advance(0.4);
    launch.application().simulateNewWindow();
    launch.platform.mainQueue().advance(10);
    EXPECT_EQ(launch.application().windows().size(), 2u);
}

TEST(Reopening, bringsAHiddenWindowForward)
{
    Launch launch;
    EXPECT_TRUE(launch.application().simulateReopen());

    auto& window = launch.application().window();
    window.simulateMiniaturize();
    launch.application().simulateResignActive();
    EXPECT_FALSE(launch.application().simulateReopen());
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(launch.application().keyWindow().get(), &window);
}

TEST(Reopening, leavesTheRestToThePlatformWhereNoWindowIsLeft)
{
    simulated::SimulatedPlatform platform;
    velmaro::AppDelegate delegate;
    auto& panel = platform.application().simulateBareWindow({.canBecomeMainWindow = false});
    panel.simulateMiniaturize();
    EXPECT_TRUE(delegate.applicationShouldHandleReopen(platform.application(), false));
    EXPECT_FALSE(panel.isVisible());
}

TEST(OpeningAnAddress, reachesThePageOfTheActiveTab)
{
    Launch launch(threeTabs(0));
    launch.tabs()->nextTab();
    launch.settle();
    launch.application().simulateOpenURL("velmaro://page/reports");
    launch.application().simulateOpenURL("velmaro://new/boat");
    launch.application().simulateOpenURL("velmaro://drive/+007");
    EXPECT_TRUE(launch.webView(0)->scripts.empty());
    EXPECT_EQ(launch.webView(1)->scripts,
        (Strings{PageScripts::showRoute("reports"),
            PageScripts::showRouteAndCall("drives", "viewDriveDetail", "7")}));
}

TEST(OpeningAnAddress, isDroppedWhenNoTabIsActive)
{
    Launch launch(threeTabs(0));
    launch.tabs()->activeIndex = 7;
    launch.settle();
    launch.application().simulateOpenURL("velmaro://page/reports");
    launch.tabs()->activeIndex = 0;
    launch.settle();
    for (const auto& webView : launch.platform.webViews())
        EXPECT_TRUE(webView.expired() || webView.lock()->scripts.empty());
}
