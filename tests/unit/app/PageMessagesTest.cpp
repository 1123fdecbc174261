#include "app/PageMessages.h"

#include "platform/foundation/UUID.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "reports/LoadDelegate.h"
#include "reports/PrintDelegate.h"
#include "reports/ReportDownloader.h"
#include "tabs/TabbedAppModel.h"
#include "web/WebModel.h"

#include <gtest/gtest.h>

using platform::Value;
using velmaro::UserIdentity;
using velmaro::WebModel;

namespace {

struct PageMessages : testing::Test {
    // Handles the message as if it had come from the page of `model`. False when nothing is to be
    // done.
    bool post(const std::string& name, Value body)
    {
        const auto action = velmaro::actionForPageMessage(rules, {name, std::move(body)});
        if (action)
            action(model);
        return static_cast<bool>(action);
    }

    simulated::SimulatedPlatform platform;
    WebModel model{"drives"};
    const velmaro::PageMessageRules rules = velmaro::pageMessageRules();
};

} // namespace

TEST_F(PageMessages, reportWhoIsSignedIn)
{
    const std::pair<Value, std::optional<UserIdentity>> steps[] = {
        {Value::Object{{"firstname", "Ada"}, {"lastname", "Moor"}}, UserIdentity{"Ada", "Moor"}},
        {Value(), {}},
        {Value::Object{{"firstname", 5}, {"lastname", Value::Array{}}}, UserIdentity{"", ""}},
        {Value("Ada"), {}},
    };
    for (const auto& [body, user] : steps) {
        EXPECT_TRUE(post("authBridge", body));
        EXPECT_EQ(model.user(), user);
        EXPECT_EQ(platform.userDefaults().contains("vl.user.identity"), user.has_value());
    }
}

TEST_F(PageMessages, askForNotificationsWhenSomebodySignsInAndNotAtAnotherName)
{
    const auto questionsAfter = [&](const Value& body) {
        post("authBridge", body);
        platform.mainQueue().runUntilIdle();
        return platform.userNotificationCenter().questions.size();
    };
    model.setUser(UserIdentity{"Ada", ""}); // signed in since an earlier run
    EXPECT_EQ(questionsAfter(Value::Object{{"firstname", "Eve"}}), 0u);
    EXPECT_EQ(questionsAfter(Value()), 0u);
    EXPECT_FALSE(platform.userNotificationCenter().hasDelegate());
    EXPECT_EQ(questionsAfter(Value::Object{{"firstname", "Ada"}}), 1u);
}

TEST_F(PageMessages, postNotificationsWithWhatIsText)
{
    auto& center = platform.userNotificationCenter();
    center.status = platform::UNAuthorizationStatus::authorized;
    post("notifyBridge",
        Value::Object{{"title", ""}, {"body", "b"}, {"url", "velmaro://page/fuel"}, {"id", ""}});
    post("notifyBridge",
        Value::Object{{"title", 1}, {"body", nullptr}, {"url", Value::Object{}}, {"id", false}});
    platform.mainQueue().runUntilIdle();

    ASSERT_EQ(center.shown.size(), 2u);
    EXPECT_EQ(center.shown[0].identifier, "");
    EXPECT_EQ(center.shown[0].content.title, "");
    EXPECT_EQ(center.shown[0].content.body, "b");
    EXPECT_EQ(center.shown[0].content.userInfo.at("vlDeepLink"), "velmaro://page/fuel");
    EXPECT_EQ(center.shown[1].content.title, "Velmaro");
    EXPECT_EQ(center.shown[1].content.body, "");
    EXPECT_TRUE(center.shown[1].content.userInfo.empty());
    EXPECT_TRUE(platform::UUID::fromString(center.shown[1].identifier));
}

TEST_F(PageMessages, reportTheRouteAsItIsAndTheEndOfTheWelcomeTour)
{
    post("routeBridge", Value::Object{{"page", " Fuel "}});
    EXPECT_EQ(model.currentRoute(), " Fuel ");
    post("onboardingBridge", Value());
    EXPECT_TRUE(platform.userDefaults().boolean("vl.onboarding.completed"));
    EXPECT_TRUE(platform.userDefaults().boolean("vl.onboarding.shown"));
}

TEST_F(PageMessages, openATabOrLeaveOne)
{
    post("tabBridge", Value()); // without a tab model
    post("logoutBridge", Value());

    const auto app = velmaro::TabbedAppModel::make();
    post("tabBridge", Value("ignored"));
    EXPECT_EQ(app->tabs().size(), 2u);
    post("logoutBridge", Value());
    EXPECT_EQ(app->tabs().size(), 1u);
    EXPECT_EQ(app->activeTab()->currentRoute(), "newtab");
}

TEST_F(PageMessages, handOverReports)
{
    struct Case {
        const char* name;
        Value::Object body;
        const char* title;
        std::optional<std::string> filename;
    };
    const Case cases[] = {
        {"reportBridge", {{"html", "<p>"}, {"title", 5}}, "Velmaro Report", {}},
        {"reportBridge", {{"html", ""}, {"title", ""}, {"filename", ""}}, "", ""},
        {"printBridge", {{"html", "<p>"}, {"title", "Drives"}}, "Drives", {}},
    };
    for (const auto& [name, body, title, filename] : cases) {
        EXPECT_TRUE(post(name, body));
        auto& pending = velmaro::ReportDownloader::shared().pending;
        const auto& delegate = pending.begin()->second.delegate;
        const auto pdf = std::dynamic_pointer_cast<velmaro::LoadDelegate>(delegate);
        const auto print = std::dynamic_pointer_cast<velmaro::PrintDelegate>(delegate);
        ASSERT_EQ(pdf != nullptr, name == std::string("reportBridge"));
        EXPECT_EQ(pdf ? pdf->title : print->title, title);
        EXPECT_EQ(pdf ? pdf->filename : std::nullopt, filename);
        EXPECT_EQ(platform.webViews().back().lock()->documents[0].html, *body.at("html").string());
        pending.clear();
    }
}

TEST_F(PageMessages, thatLackWhatTheirNameRequiresAreDropped)
{
    const Value unfit[] = {Value(), "text", Value::Array{}, true};
    for (const auto& body : unfit) {
        for (const auto* name : {"routeBridge", "notifyBridge", "reportBridge", "printBridge"})
            EXPECT_FALSE(post(name, body)) << name;
    }
    EXPECT_FALSE(post("routeBridge", Value::Object{{"page", 3}}));
    EXPECT_FALSE(post("reportBridge", Value::Object{{"html", 5}, {"title", "Drives"}}));
    EXPECT_FALSE(post("printBridge", Value::Object{}));
    EXPECT_FALSE(post("AuthBridge", Value()));
}
