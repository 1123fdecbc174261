#include "notifications/NotificationCenterBridge.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

using platform::UNAuthorizationStatus;
using velmaro::NotificationCenterBridge;

namespace {

struct Notifications : testing::Test {
    void post(const std::string& title, const std::optional<std::string>& link = {})
    {
        NotificationCenterBridge::shared().post(title, "Body", link, "id");
        platform.mainQueue().runUntilIdle();
    }

    void answer(bool granted)
    {
        center.simulateAnswer(granted);
        platform.mainQueue().runUntilIdle();
    }

    simulated::SimulatedPlatform platform;
    simulated::SimulatedNotificationCenter& center = platform.userNotificationCenter();
};

} // namespace

TEST_F(Notifications, goByWhatTheUserHasDecided)
{
    struct Case {
        UNAuthorizationStatus status;
        bool shows;
    };
    for (const auto& [status, shows] : {
             Case{UNAuthorizationStatus::authorized, true},
             Case{UNAuthorizationStatus::provisional, true},
             Case{UNAuthorizationStatus::denied, false},
             Case{static_cast<UNAuthorizationStatus>(99), false},
         }) {
        center.shown.clear();
        center.status = status;
        post("Title");
        EXPECT_EQ(center.shown.size(), shows ? 1u : 0u);
        EXPECT_TRUE(center.questions.empty());
    }
    EXPECT_TRUE(platform.logLines.empty());
}

TEST_F(Notifications, waitForTheAnswerToTheOnlyQuestionOfARun)
{
    for (const bool granted : {true, false}) {
        simulated::SimulatedPlatform fresh;
        auto& user = fresh.userNotificationCenter();
        for (const auto* title : {"first", "second"}) {
            NotificationCenterBridge::shared().post(title, "", {}, title);
            fresh.mainQueue().runUntilIdle();
        }
        EXPECT_EQ(user.questions, (std::vector<platform::UNAuthorizationOptions>{7}));
        user.simulateAnswer(granted);
        user.status = UNAuthorizationStatus::notDetermined; // the decision was not kept
        fresh.mainQueue().runUntilIdle();
        NotificationCenterBridge::shared().post("third", "", {}, "third");
        fresh.mainQueue().runUntilIdle();

        EXPECT_EQ(user.questions.size(), 1u);
        ASSERT_EQ(user.shown.size(), granted ? 1u : 0u);
        if (granted) {
            EXPECT_EQ(user.shown[0].content.title, "first");
        }
    }
}

TEST_F(Notifications, sayWhatThePageWanted)
{
    center.status = UNAuthorizationStatus::authorized;
    struct Case {
        std::optional<std::string> link;
        std::map<std::string, std::string> userInfo;
    };
    for (const auto& [link, userInfo] : {
             Case{{}, {}},
             Case{"", {}},
             Case{"not a link", {{"vlDeepLink", "not a link"}}},
             Case{"velmaro://page/fuel", {{"vlDeepLink", "velmaro://page/fuel"}}},
         }) {
        post("Title", link);
        EXPECT_EQ(center.shown.back(),
            (platform::UNNotificationRequest{
                "id", {"Title", "Body", platform::UNNotificationSound::defaultSound, userInfo}}));
    }
    EXPECT_EQ(center.presentationOf(center.shown.back()), 18u);
}

TEST_F(Notifications, leaveALineInTheLogWhenTheyCannotBePosted)
{
    center.status = UNAuthorizationStatus::authorized;
    center.postError = platform::NSError{"There is no service."};
    post("Title");
    EXPECT_EQ(platform.logLines,
        std::vector<std::string>{"Velmaro notify post failed: There is no service."});
    EXPECT_EQ(platform.alerts().waitingCount(), 0u);
}

TEST_F(Notifications, bringTheFirstMainWindowForwardAndOpenTheirLink)
{
    platform.addScreen({{0, 0}, {1440, 900}});
    auto& application = platform.application();
    auto& panel = application.simulateBareWindow({.title = "panel", .canBecomeMainWindow = false});
    auto& first = application.simulateBareWindow({.title = "first"});
    application.simulateBareWindow({.title = "second"}).makeKeyAndOrderFront();
    panel.makeKeyAndOrderFront();

    NotificationCenterBridge::shared();
    const std::pair<std::map<std::string, std::string>, std::size_t> cases[] = {
        {{}, 0},
        {{{"vlDeepLink", "not a link"}}, 0},
        {{{"vlDeepLink", "velmaro://page/fuel"}}, 1},
        {{{"vlDeepLink", "https://elsewhere.example/"}}, 1},
    };
    int clicks = 0;
    for (const auto& [userInfo, opened] : cases) {
        application.simulateResignActive();
        platform.workspace().opened.clear();
        center.simulateClick({.identifier = "id", .content = {.userInfo = userInfo}});
        EXPECT_EQ(center.finishedClicks, ++clicks);
        EXPECT_EQ(application.activations, clicks - 1) << "inside the call";

        platform.mainQueue().runUntilIdle();
        EXPECT_EQ(application.activations, clicks);
        EXPECT_EQ(application.keyWindow().get(), &first);
        ASSERT_EQ(platform.workspace().opened.size(), opened);
        for (const auto& url : platform.workspace().opened)
            EXPECT_EQ(url.absoluteString(), userInfo.at("vlDeepLink"));
    }
}
