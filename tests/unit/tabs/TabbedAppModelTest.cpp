#include "tabs/TabbedAppModel.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

using platform::UUID;
using velmaro::TabbedAppModel;
using Routes = std::vector<std::string>;

namespace {

struct TabbedAppStage {
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

struct TabbedApp : TabbedAppStage, testing::Test { };

} // namespace

TEST(TabbedAppModel, restoresTheTabsAndWhichIsActive)
{
    struct Case {
        Routes stored;
        std::int64_t index;
        std::string routes; // with the active one in brackets
        bool isWanted = true;
    };
    const Case cases[] = {
        {{}, 0, "[]"},
        {{"drives", "  ", " fuel "}, 0, "[drives]fuel"},
        {{"a", "b", "c"}, 2, "ab[c]"},
        {{"a", "b", "c"}, std::int64_t(1) << 32, "[a]bc"},
        {{"a", "b", "c"}, -1, "[a]bc"},
        {{"a", "b", "c"}, 2, "[a]bc", false},
    };
    for (const auto& [stored, index, routes, isWanted] : cases) {
        TabbedAppStage stage;
        stage.platform.userDefaults().plant({{"vl.open.routes", stored},
            {"vl.open.routes.active", index}, {"vl.restore.active.tab", isWanted}});
        stage.app = TabbedAppModel::make();
        EXPECT_EQ(stage.layout(), routes);
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
        {2, 2, "A[B]"},
        {0, 0, "[B]C"},
        {1, 3, "A[B]C"},
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
        {'D', 'B', 1, "AD[B]C"},
        {'A', 'D', 2, "B[C]AD"},
        {'B', '?', 0, "[A]CDB"},
        {'?', 'B', 1, "A[B]CD"},
        {'B', 'B', 1, "A[B]CD"},
    };
    for (const auto& [dragged, target, active, expected] : cases) {
        open("ABCD", active);
        app->moveTab(id(dragged), id(target));
        EXPECT_EQ(layout(), expected) << dragged << " to " << target;
    }
}
