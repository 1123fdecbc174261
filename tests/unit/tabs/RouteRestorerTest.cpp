#include "tabs/RouteRestorer.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace RouteRestorer = velmaro::RouteRestorer;
using Routes = std::vector<std::string>;
using Stored = simulated::SimulatedUserDefaults::Stored;

TEST(RouteRestorer, savesOneRouteATabOrNone)
{
    struct Case {
        Routes routes;
        std::optional<Routes> stored;
    };
    const Case cases[] = {
        {{"drives", ""}, Routes{"drives", "dashboard"}},
        {{" drives\t", "   ", "fuel"}, Routes{"drives", "dashboard", "fuel"}},
        {{"\n"}, Routes{"\n"}},
        {{"", " \t"}, {}},
        {{}, {}},
    };
    for (const auto& [routes, stored] : cases) {
        simulated::SimulatedPlatform platform;
        platform.userDefaults().plant("vl.open.routes", Routes{"old"});
        RouteRestorer::saveRoutes(routes);
        EXPECT_EQ(platform.userDefaults().stringArray("vl.open.routes"), stored);
        EXPECT_EQ(platform.userDefaults().contains("vl.open.routes"), stored.has_value());
    }
}

TEST(RouteRestorer, loadsTheRoutesThatAreNotBlank)
{
    struct Case {
        Stored stored;
        Routes routes;
    };
    const Case cases[] = {
        {Routes{"drives", "  ", " vehicles "}, {"drives", "vehicles"}},
        {Routes{"", "\t"}, {}},
        {Routes{}, {}},
        {std::string("drives"), {}},
        {std::int64_t(3), {}},
    };
    for (const auto& [stored, routes] : cases) {
        simulated::SimulatedPlatform platform;
        EXPECT_EQ(RouteRestorer::loadRoutes(), Routes{});
        platform.userDefaults().plant("vl.open.routes", stored);
        EXPECT_EQ(RouteRestorer::loadRoutes(), routes);
    }
}

TEST(RouteRestorer, restoresTheActiveTabUnlessToldOtherwise)
{
    simulated::SimulatedPlatform platform;
    EXPECT_TRUE(RouteRestorer::restoreActiveTabEnabled());
    platform.userDefaults().plant("vl.restore.active.tab", true);
    EXPECT_TRUE(RouteRestorer::restoreActiveTabEnabled());
    for (const auto& no : {Stored(false), Stored(std::int64_t(0)), Stored(std::string("yes"))}) {
        platform.userDefaults().plant("vl.restore.active.tab", no);
        EXPECT_FALSE(RouteRestorer::restoreActiveTabEnabled());
    }
}
