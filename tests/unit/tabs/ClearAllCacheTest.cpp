#include "RunningApp.h"

#include <gtest/gtest.h>

using namespace velmaro;
using Strings = std::vector<std::string>;

namespace {

const Strings forgottenKeys = {"vl.onboarding.shown", "vl.onboarding.completed", "vl.open.routes",
    "vl.open.routes.active", "vl.restore.active.tab"};

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

    std::string lastAddress() const
    {
        return platform.webViews().back().lock()->loads.at(0).url.absoluteString();
    }
};

constexpr auto welcome = "https://velmaro.example/online/welcome.php";

} // namespace

TEST_F(ClearAllCache, asksFirstAndChangesNothingWhenCancelled)
{
    const auto before = platform.userDefaults().contents();
    ask("Cancel");
    const auto& alert = platform.alerts().shown.at(0);
    EXPECT_EQ(alert.messageText, "Clear all cached data?");
    EXPECT_EQ(alert.informativeText,
        "This action will sign you out and remove all cache locally-stored for Velmaro Online.\n\n"
        "You'll be returned to the Welcome screen to set things up again. This cannot be undone.");
    EXPECT_EQ(alert.alertStyle, platform::NSAlert::Style::warning);
    EXPECT_EQ(alert.buttons, (Strings{"Clear All Data", "Cancel"}));

    EXPECT_EQ(platform.userDefaults().contents(), before);
    EXPECT_TRUE(platform.userDefaults().writes().empty());
    EXPECT_TRUE(platform.websiteData().removals.empty());
    EXPECT_EQ(platform.urlCache().removals, 0);
    EXPECT_EQ(tabs()->tabs().size(), 3u);
}

TEST_F(ClearAllCache, forgetsTheSettingsAtOnceAndTheTabsWhenTheirDataHaveGone)
{
    tabs()->closeTab(2);
    const std::weak_ptr oldPage = platform.webViews().back();
    ask("Clear All Data");
    EXPECT_EQ(platform.userDefaults().writes(), forgottenKeys);
    EXPECT_EQ(platform.websiteData().removals,
        std::vector{platform::WKWebsiteDataStore::defaultDataStore});
    EXPECT_EQ(tabs()->tabs().size(), 2u);
    EXPECT_EQ(platform.urlCache().removals, 0);

    finishRemoval();
    EXPECT_EQ(platform.urlCache().removals, 1);
    ASSERT_EQ(tabs()->tabs().size(), 1u);
    EXPECT_EQ(tabs()->activeIndex(), 0);
    EXPECT_EQ(tabs()->activeTab()->initialRoute, std::nullopt);
    EXPECT_EQ(lastAddress(), welcome);
    EXPECT_TRUE(platform.userDefaults().contains("vl.user.identity"));
    EXPECT_FALSE(tabs()->canReopenTab());
    platform.mainQueue().advance(1);
    EXPECT_TRUE(oldPage.expired());
}

TEST_F(ClearAllCache, askedForTwiceInARowStillEndsOnTheWelcomePage)
{
    ask("Clear All Data");
    ask("Clear All Data");
    finishRemoval();
    finishRemoval();
    EXPECT_EQ(tabs()->tabs().size(), 1u);
    EXPECT_EQ(lastAddress(), welcome);

    ask("Clear All Data");
    finishRemoval();
    EXPECT_EQ(tabs()->tabs().size(), 1u);
    EXPECT_EQ(lastAddress(), welcome);
}

TEST_F(ClearAllCache, quitBeforeItsEndSavesTheTabsAgain)
{
    ask("Clear All Data");
    platform.application().simulateQuit();
    EXPECT_EQ(platform.userDefaults().stringArray("vl.open.routes")->size(), 3u);
    EXPECT_FALSE(platform.userDefaults().contains("vl.restore.active.tab"));
    EXPECT_EQ(tabs(), nullptr);
    finishRemoval(); // reaches nobody
    EXPECT_EQ(platform.urlCache().removals, 0);
}

TEST_F(ClearAllCache, quitDuringTheQuestionDoesNothing)
{
    platform.application().menus().simulatePress("Clear All Cache…");
    platform.application().simulateQuit();
    platform.alerts().simulateAnswer("Clear All Data");
    EXPECT_TRUE(platform.websiteData().removals.empty());
    EXPECT_TRUE(platform.userDefaults().contains("vl.onboarding.shown"));
}
