#include "notifications/NotificationCenterBridge.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

using platform::UNAuthorizationStatus;
using velmaro::NotificationCenterBridge;

namespace {

struct Notifications : testing::Test {
    void post(const std::string& title)
    {
        NotificationCenterBridge::shared().post(title, "Body", "", "id");
        platform.mainQueue().runUntilIdle();
    }

    simulated::SimulatedPlatform platform;
    simulated::SimulatedNotificationCenter& center = platform.userNotificationCenter();
};

} // namespace

TEST_F(Notifications, goByWhatTheUserHasDecided)
{
    using enum UNAuthorizationStatus;
    for (const auto& [status, shows] :
        {std::pair(authorized, true), std::pair(provisional, true), std::pair(denied, false)}) {
        center.shown.clear();
        center.status = status;
        post("Title");
        EXPECT_EQ(center.shown.size(), shows ? 1u : 0u);
    }
    EXPECT_TRUE(center.questions.empty());
}

TEST_F(Notifications, waitForTheAnswerToTheOnlyQuestionOfARun)
{
    post("first");
    post("second");
    EXPECT_EQ(center.questions, (std::vector<platform::UNAuthorizationOptions>{7}));
    EXPECT_TRUE(center.shown.empty());
    center.simulateAnswer(true);
    center.status = UNAuthorizationStatus::notDetermined; // the decision was not kept
    platform.mainQueue().runUntilIdle();
    post("third");

    EXPECT_EQ(center.questions.size(), 1u);
    EXPECT_EQ(center.shown,
        std::vector({platform::UNNotificationRequest{
            "id", {"first", "Body", platform::UNNotificationSound::defaultSound, {}}}}));
    EXPECT_EQ(center.presentationOf(center.shown.back()), 18u);
}

TEST_F(Notifications, bringTheFirstMainWindowForwardAndOpenTheirLink)
{
    auto& application = platform.application();
    application.simulateBareWindow({.title = "panel", .canBecomeMainWindow = false});
    auto& first = application.simulateBareWindow({.title = "first"});
    application.simulateBareWindow({.title = "second"});

    NotificationCenterBridge::shared();
    for (const auto* link : {"not a link", "velmaro://page/fuel"}) {
        application.simulateResignActive();
        center.simulateClick({.identifier = "id", .content = {.userInfo = {{"vlDeepLink", link}}}});
        EXPECT_FALSE(application.keyWindow()) << "inside the call";
        platform.mainQueue().runUntilIdle();
        EXPECT_EQ(application.keyWindow().get(), &first);
    }
    EXPECT_EQ(center.finishedClicks, 2);
    EXPECT_EQ(application.activations, 2);
    ASSERT_EQ(platform.workspace().opened.size(), 1u);
    EXPECT_EQ(platform.workspace().opened[0].absoluteString(), "velmaro://page/fuel");
}
