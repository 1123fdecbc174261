#include "tabs/TabPreloader.h"

#include "RunningApp.h"

#include <gtest/gtest.h>

using velmaro::TabPreloader;
using Strings = std::vector<std::string>;

namespace {

struct TabPreloading : RunningApp, testing::Test {
    void launchWithTab(std::int64_t active)
    {
        launch({{"vl.open.routes", Strings{"a", "b", "c", "d", "e", "f"}},
            {"vl.open.routes.active", active}});
    }

    // The routes of the pages asked for so far, in their order.
    std::string loaded() const
    {
        std::string routes;
        for (const auto& webView : platform.webViews())
            routes += webView.lock()->loads.at(0).url.absoluteString().back();
        return routes;
    }

    // The page asked for last comes; then nothing happens for a while.
    void finishLoad()
    {
        const auto webView = platform.webViews().back().lock();
        webView->simulateLoading(true, 0.1);
        webView->simulateTitle("A page");
        platform.mainQueue().advance(10 * TabPreloader::pause);
        webView->simulateLoading(false, 1);
        platform.mainQueue().advance(2 * TabPreloader::pause);
    }
};

} // namespace

TEST_F(TabPreloading, goesOutwardsFromTheActiveTabOnePageAfterTheOtherUpToFour)
{
    launchWithTab(2);
    EXPECT_EQ(loaded(), "c");
    platform.mainQueue().advance(100 * TabPreloader::pause);
    EXPECT_EQ(loaded(), "cd");
    finishLoad();
    EXPECT_EQ(loaded(), "cdb");
    finishLoad();
    EXPECT_EQ(loaded(), "cdbe");
    finishLoad();
    EXPECT_EQ(loaded(), "cdbe");
}

TEST_F(TabPreloading, leavesMemoryToOthersWhenItIsShort)
{
    platform.processInfo().memory = TabPreloader::spareMemory - 1;
    launchWithTab(0);
    platform.mainQueue().advance(100 * TabPreloader::pause);
    EXPECT_EQ(loaded(), "a");
}
