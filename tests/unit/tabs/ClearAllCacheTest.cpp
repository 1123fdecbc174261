#include "RunningApp.h"

#include <gtest/gtest.h>

using namespace velmaro;
using Strings = std::vector<std::string>;

namespace {

// The application of somebody who has used it: three tabs, the second of which is shown.
struct ClearAllCache : RunningApp, testing::Test {
    ClearAllCache()
    {
        launch({
            {"vl.onboarding.shown", true},
            {"vl.onboarding.completed", true},
            {"vl.open.routes", Strings{"drives", "fuel", "reports"}},
            {"vl.open.routes.active", std::int64_t(1)},
            {"vl.restore.active.tab", true},
            {"vl.user.identity", platform::Data{std::byte('{'), std::byte('}')}},
        });
    }

    void ask(const char* answer)
    {
        platform.application().menus().simulatePress("Clear All Cache…");
        platform.alerts().simulateAnswer(answer);
        settle();
    }

    void finishRemoval()
    {
        platform.websiteData().simulateRemoved();
        settle();
    }
};

} // namespace

TEST_F(ClearAllCache, asksFirstAndChangesNothingWhenCancelled)
{
    const auto before = platform.userDefaults().contents();
    ask("Cancel");
    const auto& alert = platform.alerts().shown.at(0);
    EXPECT_EQ(alert.messageText, "Clear all cached data?");
    EXPECT_EQ(alert.buttons, (Strings{"Clear All Data", "Cancel"}));
    EXPECT_EQ(platform.userDefaults().contents(), before);
    EXPECT_TRUE(platform.websiteData().removals.empty());
    EXPECT_EQ(tabs()->tabs().size(), 3u);
}

TEST_F(ClearAllCache, forgetsTheSettingsAtOnceAndTheTabsWhenTheirDataHaveGone)
{
    tabs()->closeTab(2);
    ask("Clear All Data");
    EXPECT_EQ(platform.userDefaults().contents().size(), 1u) << "the user's name stays";
    EXPECT_EQ(platform.websiteData().removals,
        std::vector{platform::WKWebsiteDataStore::defaultDataStore});
    EXPECT_EQ(tabs()->tabs().size(), 2u);
    EXPECT_EQ(platform.urlCache().removals, 0);

    finishRemoval();
    EXPECT_EQ(platform.urlCache().removals, 1);
    EXPECT_EQ(tabs()->tabs().size(), 1u);
    EXPECT_EQ(platform.webViews().back().lock()->loads.at(0).url.absoluteString(),
        "https://velmaro.example/online/welcome.php");
    EXPECT_FALSE(tabs()->canReopenTab());
}

TEST_F(ClearAllCache, quitBeforeItsEndSavesTheTabsAgain)
{
    ask("Clear All Data");
    platform.application().simulateQuit();
    EXPECT_EQ(platform.userDefaults().stringArray("vl.open.routes")->size(), 3u);
    finishRemoval(); // reaches nobody
    EXPECT_EQ(platform.urlCache().removals, 0);
}
