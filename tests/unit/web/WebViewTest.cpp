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

TEST_F(WebViews, areConfiguredForTheService)
{
    const auto& webView = open();
    const auto& configuration = webView.configuration;
    EXPECT_EQ(configuration.websiteDataStore, platform::WKWebsiteDataStore::defaultDataStore);
    EXPECT_TRUE(configuration.preferences.javaScriptCanOpenWindowsAutomatically);

    const auto& scripts = configuration.userContentController.userScripts;
    ASSERT_EQ(scripts.size(), 2u);
    EXPECT_EQ(scripts[0].source, "window.__vlPlatform = 'desktop';");
    EXPECT_EQ(scripts[0].injectionTime, WKUserScript::InjectionTime::atDocumentStart);
    EXPECT_NE(scripts[1].source.find("__vlAuthBridgeInstalled"), std::string::npos);
    EXPECT_EQ(scripts[1].injectionTime, WKUserScript::InjectionTime::atDocumentEnd);
    EXPECT_TRUE(scripts[0].forMainFrameOnly && scripts[1].forMainFrameOnly);

    std::vector<std::string> names;
    for (const auto& handler : configuration.userContentController.scriptMessageHandlers) {
        names.push_back(handler.name);
        EXPECT_FALSE(handler.handler.expired());
    }
    EXPECT_EQ(names,
        (std::vector<std::string>{"authBridge", "reportBridge", "printBridge", "routeBridge",
            "onboardingBridge", "notifyBridge", "logoutBridge", "tabBridge"}));

    EXPECT_EQ(webView.settings.allowsBackForwardNavigationGestures, true);
    EXPECT_EQ(webView.settings.allowsMagnification, true);
    EXPECT_EQ(webView.settings.usesOverlayScrollers, true);
    EXPECT_EQ(webView.settings.drawsBackground, false);
    EXPECT_EQ(webView.settings.customUserAgent, velmaro::userAgentString());
}

TEST_F(WebViews, loadTheStartAddressOnceAndRevalidateIt)
{
    const auto& webView = open();
    ASSERT_EQ(webView.loads.size(), 1u);
    EXPECT_EQ(webView.loads[0].url.absoluteString(), "https://velmaro.example/online#fuel");
    EXPECT_EQ(webView.loads[0].cachePolicy, URLRequest::CachePolicy::reloadRevalidatingCacheData);
    EXPECT_EQ(webView.loads[0].timeoutInterval, 60);
    EXPECT_EQ(model->webView.lock().get(), &webView);
    EXPECT_TRUE(webView.scripts.empty());
}

TEST_F(WebViews, nameTheVersionToTheService)
{
    constexpr auto prefix = "Mozilla/5.0 (Macintosh; Intel Mac OS X) AppleWebKit/605.1.15 (KHTML, "
                            "like Gecko) VelmaroOnline/";
    EXPECT_EQ(velmaro::userAgentString(), prefix + std::string("1.0 Safari/605.1.15"));
    platform.mainBundle().infoDictionary["CFBundleShortVersionString"] = "2.3";
    EXPECT_EQ(velmaro::userAgentString(), prefix + std::string("2.3 Safari/605.1.15"));
}

TEST_F(WebViews, mirrorThePageInTheModelAfterTheEvent)
{
    auto& webView = open();
    EXPECT_EQ(webView.observationCount(), 5u);
    webView.simulateHistory(true, true);
    webView.simulateLoading(true, 0.25);
    webView.simulateTitle("Drives");
    EXPECT_FALSE(model->isLoading()) << "observations may come at any moment";

    webView.simulateLoading(true, 0.5);
    settle();
    EXPECT_TRUE(model->canGoBack());
    EXPECT_TRUE(model->canGoForward());
    EXPECT_TRUE(model->isLoading());
    EXPECT_EQ(model->estimatedProgress(), 0.5);
    EXPECT_EQ(model->pageTitle(), "Drives");
    webView.simulateTitle("");
    settle();
    EXPECT_EQ(model->pageTitle(), "");
}

TEST_F(WebViews, takeTheCurrentValuesWhenTheyAreBuilt)
{
    model->isLoading = true;
    model->pageTitle = "old";
    open();
    EXPECT_FALSE(model->isLoading());
    EXPECT_EQ(model->pageTitle(), "");
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
    struct Case {
        std::optional<std::string> route;
        const char* address;
        bool setsFlag;
    };
    const Case cases[] = {
        {"fuel", "https://velmaro.example/online#fuel", false},
        {"a%20b/c?d", "https://velmaro.example/online#a%20b/c?d", false},
        {"", "https://velmaro.example/online/welcome.php", true},
        {"a b", "https://velmaro.example/online/welcome.php", true},
        {"50%", "https://velmaro.example/online/welcome.php", true},
        {"a#b", "https://velmaro.example/online/welcome.php", true},
        {"caf\u00e9", "https://velmaro.example/online/welcome.php", true},
        {{}, "https://velmaro.example/online/welcome.php", true},
    };
    for (const auto& [route, address, setsFlag] : cases) {
        simulated::SimulatedPlatform fresh;
        EXPECT_EQ(startURL(WebModel(route)).absoluteString(), address);
        EXPECT_EQ(fresh.userDefaults().boolean("vl.onboarding.shown"), setsFlag) << address;
        EXPECT_EQ(fresh.userDefaults().writes().size(), setsFlag ? 1u : 0u) << address;

        fresh.userDefaults().plant("vl.onboarding.shown", true);
        const auto* later = setsFlag ? "https://velmaro.example/online" : address;
        EXPECT_EQ(startURL(WebModel(route)).absoluteString(), later);
    }
}
