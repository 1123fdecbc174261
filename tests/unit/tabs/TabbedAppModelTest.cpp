#include "tabs/TabbedAppModel.h"

#include "platform/appkit/NSApplication.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

using platform::NotificationCenter;
using platform::NSApplication;
using platform::UUID;
using velmaro::TabbedAppModel;
using Routes = std::vector<std::string>;
using Stored = simulated::SimulatedUserDefaults::Stored;

namespace {

struct TabbedApp : testing::Test {
    // One tab for each letter, named by it; the tab `active` is shown.
    void open(const std::string& letters, int active = 0)
    {
        Routes routes;
        for (const char letter : letters)
            routes.emplace_back(1, letter);
        platform.userDefaults().plant("vl.open.routes", routes);
        app = TabbedAppModel::make();
        app->activeIndex = active;
    }

    // The tabs' letters, the active one in brackets.
    std::string layout() const
    {
        std::string text;
        for (const auto& tab : app->tabs())
            text += tab == app->activeTab() ? "[" + tab->currentRoute() + "]" : tab->currentRoute();
        return text;
    }

    UUID id(char letter) const
    {
        for (const auto& tab : app->tabs()) {
            if (tab->currentRoute() == std::string(1, letter))
                return tab->id;
        }
        return UUID();
    }

    simulated::SimulatedPlatform platform;
    std::shared_ptr<TabbedAppModel> app;
};

} // namespace

TEST(TabbedAppModel, restoresTheTabsAndWhichIsActive)
{
    struct Case {
        const char* name;
        std::map<std::string, Stored> stored;
        std::vector<std::optional<std::string>> routes;
        int active;
    };
    const std::optional<std::string> none;
    const Routes three = {"a", "b", "c"};
    const auto index = [](std::int64_t value) { return Stored(value); };

    const Case cases[] = {
        {"nothing stored", {}, {none}, 0},
        {"some blank", {{"vl.open.routes", Routes{"drives", "  ", " vehicles "}}},
            {"drives", "vehicles"}, 0},
        {"an index", {{"vl.open.routes", three}, {"vl.open.routes.active", index(2)}},
            {"a", "b", "c"}, 2},
        {"an index past the end", {{"vl.open.routes", three}, {"vl.open.routes.active", index(3)}},
            {"a", "b", "c"}, 0},
        {"an index far past the end",
            {{"vl.open.routes", three}, {"vl.open.routes.active", index(std::int64_t(1) << 32)}},
            {"a", "b", "c"}, 0},
        {"a negative index", {{"vl.open.routes", three}, {"vl.open.routes.active", index(-1)}},
            {"a", "b", "c"}, 0},
        {"an index beside blank routes",
            {{"vl.open.routes", Routes{"", "b", "c"}}, {"vl.open.routes.active", index(2)}},
            {"b", "c"}, 0},
        {"the setting off",
            {{"vl.open.routes", three}, {"vl.open.routes.active", index(2)},
                {"vl.restore.active.tab", false}},
            {"a", "b", "c"}, 0},
        {"the setting on",
            {{"vl.open.routes", three}, {"vl.open.routes.active", index(1)},
                {"vl.restore.active.tab", true}},
            {"a", "b", "c"}, 1},
    };
    for (const auto& [name, stored, routes, active] : cases) {
        SCOPED_TRACE(name);
        simulated::SimulatedPlatform platform;
        platform.userDefaults().plant(stored);
        const auto app = TabbedAppModel::make();

        ASSERT_EQ(app->tabs().size(), routes.size());
        for (std::size_t i = 0; i < routes.size(); ++i) {
            EXPECT_EQ(app->tabs()[i]->initialRoute, routes[i]);
            EXPECT_EQ(app->tabs()[i]->currentRoute(), routes[i].value_or(""));
        }
        EXPECT_EQ(app->activeIndex(), active);
        EXPECT_TRUE(platform.userDefaults().writes().empty());
    }
}

TEST_F(TabbedApp, closingOnlyClampsTheActiveIndex)
{
    struct Case {
        int active;
        int closed;
        const char* layout;
    };
    const Case cases[] = {
        {2, 0, "B[C]"},
        {1, 0, "B[C]"},
        {2, 2, "A[B]"},
        {0, 0, "[B]C"},
        {0, 2, "[A]B"},
        {1, 3, "A[B]C"},
        {1, -1, "A[B]C"},
        {-4, 1, "[A]C"},
        {9, 1, "A[C]"},
    };
    for (const auto& [active, closed, expected] : cases) {
        open("ABC", active);
        app->closeTab(closed);
        EXPECT_EQ(layout(), expected) << "active " << active << ", closed " << closed;
    }
}

TEST_F(TabbedApp, closingTheOnlyTabClosesTheKeyWindowAndKeepsTheTab)
{
    open("A");
    app->closeTab(0); // without any window
    EXPECT_EQ(layout(), "[A]");

    platform.application().simulateBareWindow({});
    app->closeTab(0);
    EXPECT_TRUE(platform.application().windows().empty());
    EXPECT_EQ(layout(), "[A]");
}

TEST_F(TabbedApp, movesATabInFrontOfItsTargetAndKeepsTheActiveOne)
{
    struct Case {
        char dragged;
        char target;
        int active;
        const char* layout;
    };
    const Case cases[] = {
        {'A', 'C', 0, "B[A]CD"},
        {'D', 'B', 0, "[A]DBC"},
        {'D', 'B', 1, "AD[B]C"},
        {'A', 'D', 2, "B[C]AD"},
        {'A', 'B', 3, "ABC[D]"},
        {'B', '?', 0, "[A]CDB"},
        {'?', 'B', 1, "A[B]CD"},
        {'B', 'B', 1, "A[B]CD"},
        {'B', 'A', 9, "BACD"},
    };
    for (const auto& [dragged, target, active, expected] : cases) {
        open("ABCD", active);
        app->moveTab(id(dragged), id(target));
        EXPECT_EQ(layout(), expected) << dragged << " to " << target;
    }
}

TEST_F(TabbedApp, keepsOnlyTheActiveTab)
{
    open("ABCD", 1);
    app->closeTab(3);
    app->keepOnlyActiveTab();
    EXPECT_EQ(layout(), "[B]");
    EXPECT_FALSE(app->canReopenTab()) << "those of somebody who has signed out";
    EXPECT_EQ(app->activeIndex(), 0);

    open("ABC", 3);
    app->keepOnlyActiveTab();
    EXPECT_EQ(layout(), "ABC");
}

TEST_F(TabbedApp, savesRoutesAndIndexWhenTheApplicationTerminatesAndOnlyThen)
{
    platform.userDefaults().plant("vl.restore.active.tab", false); // concerns the next launch alone
    open("ABC", 0);
    app->tabs()[1]->currentRoute = std::string();
    app->nextTab();
    EXPECT_TRUE(platform.userDefaults().writes().empty());

    NotificationCenter::defaultCenter().post(NSApplication::willTerminateNotification);
    EXPECT_EQ(
        platform.userDefaults().stringArray("vl.open.routes"), (Routes{"A", "dashboard", "C"}));
    EXPECT_EQ(platform.userDefaults().integer("vl.open.routes.active"), 1);
}
