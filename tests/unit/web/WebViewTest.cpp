#include "web/WebView.h"

#include "app/PageMessages.h"
#include "ui/Stage.h"

#include <gtest/gtest.h>

using platform::URLRequest;
using platform::WKUserScript;
using velmaro::startURL;
using velmaro::WebModel;

namespace {

struct WebViews : Stage, testing::Test {
    // The web view of the model, shown in a window.
    simulated::SimulatedWebView& open()
    {
        show(tab());
        settle();
        return *platform.webViews().back().lock();
    }

    velmaro::WebView tab() const { return {model, velmaro::pageMessageRules()}; }

    std::shared_ptr<WebModel> model = std::make_shared<WebModel>("fuel");
};

} // namespace

TEST_F(WebViews, areConfiguredForTheServiceAndLoadTheirStartAddressOnce)
{
    platform.mainBundle().infoDictionary["CFBundleShortVersionString"] = "2.3";
    const auto& webView = open();
    const auto& content = webView.configuration.userContentController;
    ASSERT_EQ(content.userScripts.size(), 2u);
    EXPECT_EQ(content.userScripts[0].source, "window.__vlPlatform = 'desktop';");
    EXPECT_EQ(content.userScripts[0].injectionTime, WKUserScript::InjectionTime::atDocumentStart);
    EXPECT_EQ(content.userScripts[1].injectionTime, WKUserScript::InjectionTime::atDocumentEnd);
    for (const auto& script : content.userScripts)
        EXPECT_TRUE(script.forMainFrameOnly);
    std::vector<std::string> names;
    for (const auto& handler : content.scriptMessageHandlers)
        names.push_back(handler.name);
    EXPECT_EQ(names,
        (std::vector<std::string>{"authBridge", "reportBridge", "printBridge", "routeBridge",
            "onboardingBridge", "notifyBridge", "logoutBridge", "tabBridge"}));
    EXPECT_EQ(webView.settings.usesOverlayScrollers, true);
    EXPECT_EQ(webView.settings.drawsBackground, false);
    EXPECT_EQ(webView.settings.customUserAgent,
        "Mozilla/5.0 (Macintosh; Intel Mac OS X) AppleWebKit/605.1.15 (KHTML, like Gecko) "
        "VelmaroOnline/2.3 Safari/605.1.15");
    ASSERT_EQ(webView.loads.size(), 1u);
    EXPECT_EQ(webView.loads[0].url.absoluteString(), "https://velmaro.example/online#fuel");
    EXPECT_EQ(webView.loads[0].cachePolicy, URLRequest::CachePolicy::reloadRevalidatingCacheData);
    EXPECT_EQ(webView.loads[0].timeoutInterval, 60);
}

TEST_F(WebViews, mirrorThePageInTheModelAfterTheEvent)
{
    auto& webView = open();
    webView.simulateHistory(true, true);
    webView.simulateTitle("Drives");
    webView.simulateLoading(true, 0.5);
    EXPECT_FALSE(model->isLoading()) << "observations may come at any moment";
    settle();
    EXPECT_TRUE(model->canGoBack());
    EXPECT_TRUE(model->canGoForward());
    EXPECT_TRUE(model->isLoading());
    EXPECT_EQ(model->estimatedProgress(), 0.5);
    EXPECT_EQ(model->pageTitle(), "Drives");
}

TEST_F(WebViews, tellNobodyOnceTheyHaveGone)
{
    const auto content = std::make_shared<ui::Published<bool>>(true);
    struct Screen {
        std::shared_ptr<ui::Published<bool>> showsWebView;
        velmaro::WebView webView;
        ui::View body() const { return (*showsWebView)() ? ui::View(webView) : ui::View(); }
    };
    show(Screen{content, tab()});
    settle();
    const std::weak_ptr<simulated::SimulatedWebView> webView = platform.webViews()[0];
    const auto handler =
        webView.lock()->configuration.userContentController.scriptMessageHandlers[0].handler;

    *content = false; // the redraw is queued before what the page still reports
    webView.lock()->simulateTitle("late");
    webView.lock()->simulateMessage("routeBridge", platform::Value::Object{{"page", "late"}});
    settle();
    EXPECT_TRUE(webView.expired());
    EXPECT_TRUE(handler.expired());
    EXPECT_TRUE(model->webView.expired());
    EXPECT_EQ(model->pageTitle(), "");
    EXPECT_EQ(model->currentRoute(), "fuel");
}

TEST_F(WebViews, startAtTheirRouteElseAtTheWelcomePageOnce)
{
    startURL(WebModel("fuel"));
    EXPECT_FALSE(platform.userDefaults().contains("vl.onboarding.shown"));
    for (const std::optional<std::string>& route : {std::optional<std::string>(), {""}, {"a b"}}) {
        simulated::SimulatedPlatform fresh;
        EXPECT_EQ(startURL(WebModel(route)).absoluteString(),
            "https://velmaro.example/online/welcome.php");
        EXPECT_TRUE(fresh.userDefaults().boolean("vl.onboarding.shown"));
        EXPECT_EQ(startURL(WebModel(route)).absoluteString(), "https://velmaro.example/online");
    }
}
