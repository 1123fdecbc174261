#include "web/LocationScripts.h"

#include "location/StationKind.h"
#include "RunningApp.h"
#include "ui/Stage.h"

#include <gtest/gtest.h>

namespace velmaro {

TEST(LocationHandOff, takesEveryPickToTheTabThatThePickerWasOpenedFor)
{
    RunningApp run;
    run.launch({{"vl.open.routes", std::vector<std::string>{"drives", "fuel"}}});
    const auto& window = run.platform.application().window().content();
    run.tabs()->activeTab()->setUser(UserIdentity{"Robin", "Alder"});
    run.settle();
    ASSERT_TRUE(press(window, "Find charging stations"));
    run.settle();
    run.platform.searchCompleters().back().lock()->simulateResults({{"Quay", ""}, {"Pier", ""}});
    run.tabs()->nextTab();
    run.settle();

    ASSERT_TRUE(press(window, "Quay") && press(window, "Pier"));
    const auto& searches = run.platform.localSearches();
    searches[1]->simulatePlaces({{3, 4}});
    searches[0]->simulatePlaces({{1, 2}});
    run.settle();
    const std::vector<std::string> expected = {
        LocationScripts::handOffLocation(StationKind::evstations, {3, 4, "Pier"}),
        LocationScripts::handOffLocation(StationKind::evstations, {1, 2, "Quay"}),
    };
    EXPECT_EQ(run.webView(0)->scripts, expected);
    EXPECT_FALSE(press(window, "Quay")) << "the picker is closed";
}

} // namespace velmaro
