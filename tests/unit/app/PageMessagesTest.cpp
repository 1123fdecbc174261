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
    struct Step {
        Value body;
        std::optional<UserIdentity> user;
    };
    const Step steps[] = {
        {Value::Object{{"firstname", "Ada"}, {"lastname", "Moor"}}, UserIdentity{"Ada", "Moor"}},
        {Value::Object{{"firstname", 5}, {"lastname", Value::Array{}}}, UserIdentity{"", ""}},
        {Value::Object{{"firstname", "Ada"}}, UserIdentity{"Ada", ""}},
        {Value(), {}},
        {Value::Object{}, UserIdentity{"", ""}},
        {Value("Ada"), {}},
    };
    for (const auto& [body, user] : steps) {
        EXPECT_TRUE(post("authBridge", body));
        EXPECT_EQ(model.user(), user);
        EXPECT_EQ(platform.userDefaults().contains("vl.user.identity"), user.has_value());
        const auto writes = platform.userDefaults().writes().size();
        post("authBridge", body);
        EXPECT_EQ(platform.userDefaults().writes().size(), writes);
    }
}

TEST_F(PageMessages, reportTheRouteAsItIs)
{
    for (const auto& body :
        {Value(), Value("fuel"), Value(Value::Object{}), Value(Value::Object{{"page", 3}})})
        EXPECT_FALSE(post("routeBridge", body));
    EXPECT_EQ(model.currentRoute(), "drives");
    post("routeBridge", Value::Object{{"page", " Fuel "}});
    EXPECT_EQ(model.currentRoute(), " Fuel ");
    post("routeBridge", Value::Object{{"page", ""}});
    EXPECT_EQ(model.currentRoute(), "");
}

TEST_F(PageMessages, askForNotificationsWhenSomebodySignsIn)
{
    const Value::Object ada{{"firstname", "Ada"}};
    const auto questionsAfter = [&](const Value& body) {
        post("authBridge", body);
        platform.mainQueue().runUntilIdle();
        return platform.userNotificationCenter().questions.size();
    };
    EXPECT_EQ(questionsAfter(Value()), 0u);
    EXPECT_FALSE(platform.userNotificationCenter().hasDelegate());
    EXPECT_EQ(questionsAfter(ada), 1u);
    EXPECT_TRUE(platform.userNotificationCenter().hasDelegate());

    simulated::SimulatedPlatform later; // somebody is signed in from the start
    later.userDefaults().setData(WebModel::userDefaultsKey, *UserIdentity{"Ada", ""}.encoded());
    WebModel tab{"drives"};
    for (const auto& body : {Value(ada), Value(Value::Object{{"firstname", "Eve"}})}) {
        velmaro::actionForPageMessage(rules, {"authBridge", body})(tab);
        later.mainQueue().runUntilIdle();
    }
    EXPECT_EQ(tab.user()->firstname, "Eve");
    EXPECT_TRUE(later.userNotificationCenter().questions.empty());
}

TEST_F(PageMessages, postNotificationsWithWhatIsText)
{
    auto& center = platform.userNotificationCenter();
    center.status = platform::UNAuthorizationStatus::authorized;
    for (const auto& body : {Value(), Value("text"), Value(Value::Array{}), Value(true)})
        EXPECT_FALSE(post("notifyBridge", body));

    post("notifyBridge",
        Value::Object{{"title", ""}, {"body", "b"}, {"url", "velmaro://page/fuel"}, {"id", ""}});
    post("notifyBridge",
        Value::Object{{"title", 1}, {"body", nullptr}, {"url", Value::Object{}}, {"id", false}});
    post("notifyBridge", Value::Object{});
    platform.mainQueue().runUntilIdle();

    ASSERT_EQ(center.shown.size(), 3u);
    EXPECT_EQ(center.shown[0].identifier, "");
    EXPECT_EQ(center.shown[0].content.title, "");
    EXPECT_EQ(center.shown[0].content.body, "b");
    EXPECT_EQ(center.shown[0].content.userInfo.at("vlDeepLink"), "velmaro://page/fuel");
    for (const auto index : {1u, 2u}) {
        const auto& [identifier, content] = center.shown[index];
        EXPECT_EQ(content.title, "Velmaro");
        EXPECT_EQ(content.body, "");
        EXPECT_TRUE(content.userInfo.empty());
        EXPECT_TRUE(platform::UUID::fromString(identifier));
    }
    EXPECT_NE(center.shown[1].identifier, center.shown[2].identifier);
}

TEST_F(PageMessages, finishTheWelcomeTour)
{
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
    EXPECT_EQ(app->activeTab()->currentRoute(), "newtab");
    const auto active = app->activeTab();
    post("logoutBridge", Value());
    EXPECT_EQ(app->tabs(), velmaro::TabbedAppModel::Tabs{active});
}

TEST_F(PageMessages, handOverReports)
{
    for (const auto* name : {"reportBridge", "printBridge"}) {
        for (const auto& body : {Value(), Value("<p>"), Value(Value::Object{}),
                 Value(Value::Object{{"html", 5}, {"title", "Drives"}})})
            EXPECT_FALSE(post(name, body)) << name;
    }

    struct Case {
        const char* name;
        Value::Object body;
        const char* title;
        std::optional<std::string> filename;
    };
    const Case cases[] = {
        {"reportBridge", {{"html", ""}}, "Velmaro Report", {}},
        {"reportBridge", {{"html", "<p>"}, {"title", 5}, {"filename", Value()}}, "Velmaro Report",
            {}},
        {"reportBridge", {{"html", "<p>"}, {"title", ""}, {"filename", ""}}, "", ""},
        {"printBridge", {{"html", "<p>"}, {"title", "Drives"}}, "Drives", {}},
        {"printBridge", {{"html", "<p>"}}, "Velmaro Report", {}},
    };
    for (const auto& [name, body, title, filename] : cases) {
        EXPECT_TRUE(post(name, body));
        auto& pending = velmaro::ReportDownloader::shared().pending;
        ASSERT_EQ(pending.size(), 1u);
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

TEST_F(PageMessages, underUnknownNamesAreDropped)
{
    for (const auto* name : {"", "AuthBridge", "unknownBridge"})
        EXPECT_FALSE(post(name, Value::Object{{"page", "fuel"}}));
}
