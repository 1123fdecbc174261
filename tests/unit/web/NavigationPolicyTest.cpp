#include "web/NavigationPolicy.h"

#include "platform/simulated/SimulatedPlatform.h"
#include "shared/NavigationAddresses.h"
#include "ui/Stage.h"
#include "web/WebView.h"

#include <gtest/gtest.h>

using platform::URL;
using platform::WKNavigationAction;
using platform::WKNavigationActionPolicy;
using velmaro::AddressUse;
using velmaro::isAllowedHost;

namespace {

// A tab whose page asks for things.
struct NavigationPolicy : Stage, testing::Test {
    NavigationPolicy()
    {
        show(velmaro::WebView{std::make_shared<velmaro::WebModel>("fuel")});
        settle();
        webView = platform.webViews().back().lock();
        webView->loads.clear();
    }

    // The one answer to the page's wish to go somewhere.
    WKNavigationActionPolicy decision(const WKNavigationAction& action)
    {
        std::vector<WKNavigationActionPolicy> answers;
        webView->navigationDelegate.lock()->decidePolicy(
            *webView, action, [&](auto answer) { answers.push_back(answer); });
        EXPECT_EQ(answers.size(), 1u);
        return answers.at(0);
    }

    std::vector<URL> takeOpened() { return std::exchange(platform.workspace().opened, {}); }

    std::shared_ptr<simulated::SimulatedWebView> webView;
};

WKNavigationAction action(const std::string& address)
{
    return {.requestURL = URL::encodingInvalidCharacters(address), .shouldPerformDownload = false};
}

} // namespace

TEST(AllowedHosts, areTheServicesAndThePaymentProvidersInAnyCase)
{
    simulated::SimulatedPlatform platform;
    auto& service = velmaro::Service::current();
    EXPECT_FALSE(isAllowedHost(std::nullopt, service));
    EXPECT_FALSE(isAllowedHost("", service));

    ASSERT_TRUE(service.setServiceOrigin("https://Intranet.Example:8443"));
    ASSERT_TRUE(service.setPaymentCheckoutHosts("Pay.example Sandbox.Pay.test"));
    for (const auto* host : {"intranet.example", "INTRANET.example", "a.intranet.EXAMPLE",
             "pay.example", "x.PAY.example", "sandbox.pay.test", "y.sandbox.pay.test"})
        EXPECT_TRUE(isAllowedHost(host, service)) << host;
    for (const auto* host : {"velmaro.example", "example", "xintranet.example", "pay.test",
             "intranet.example.", "intranet.example:8443", "pay.example.test", " pay.example"})
        EXPECT_FALSE(isAllowedHost(host, service)) << host;

    ASSERT_TRUE(service.setServiceOrigin("https://[::1]"));
    EXPECT_TRUE(isAllowedHost(URL::fromString("https://[::1]/")->host(), service));
    for (const auto* hosts : {"", "one", "one two three", "   "})
        EXPECT_FALSE(service.setPaymentCheckoutHosts(hosts)) << hosts;
    EXPECT_EQ(service.paymentCheckoutHosts()[1], "Sandbox.Pay.test");
}

TEST_F(NavigationPolicy, leavesForeignPagesAndCallsToTheSystem)
{
    EXPECT_GE(std::size(navigationAddresses()), 60u);
    for (const auto& [written, delivered, navigation, newWindow] : navigationAddresses()) {
        if (delivered.empty())
            continue;
        const bool isShown = navigation == AddressUse::inTab;
        EXPECT_EQ(decision(action(delivered)),
            isShown ? WKNavigationActionPolicy::allow : WKNavigationActionPolicy::cancel)
            << written;
        const auto opened = takeOpened();
        ASSERT_EQ(opened.size(), navigation == AddressUse::withSystem ? 1u : 0u) << written;
        if (!opened.empty()) {
            EXPECT_EQ(opened[0], *action(delivered).requestURL);
        }
    }
    EXPECT_TRUE(webView->loads.empty());
}

TEST_F(NavigationPolicy, doesNotAskWhereADownloadComesFrom)
{
    for (const auto* address : {"https://elsewhere.example/a.csv", "blob:null/1", "data:,a"}) {
        auto download = action(address);
        download.shouldPerformDownload = true;
        EXPECT_EQ(decision(download), WKNavigationActionPolicy::download);
    }
    EXPECT_EQ(decision({.requestURL = {}, .shouldPerformDownload = false}),
        WKNavigationActionPolicy::cancel);
    EXPECT_EQ(decision(action("blob:https://velmaro.example/1")), WKNavigationActionPolicy::cancel);
    EXPECT_TRUE(takeOpened().empty());
}

TEST_F(NavigationPolicy, makesNoSecondViewForANewWindow)
{
    auto& delegate = *webView->uiDelegate.lock();
    EXPECT_EQ(delegate.createWebView(*webView, {}), nullptr);
    for (const auto& [written, delivered, navigation, newWindow] : navigationAddresses()) {
        if (delivered.empty())
            continue;
        EXPECT_EQ(delegate.createWebView(*webView, action(delivered)), nullptr);
        const auto loads = std::exchange(webView->loads, {});
        ASSERT_EQ(loads.size(), newWindow == AddressUse::inTab ? 1u : 0u) << written;
        if (!loads.empty()) {
            EXPECT_EQ(loads[0].url, *action(delivered).requestURL);
            EXPECT_EQ(
                loads[0].cachePolicy, platform::URLRequest::CachePolicy::useProtocolCachePolicy);
            EXPECT_EQ(loads[0].timeoutInterval, 60);
        }
        EXPECT_EQ(takeOpened().size(), newWindow == AddressUse::withSystem ? 1u : 0u) << written;
    }
    EXPECT_EQ(platform.webViews().size(), 1u);
}

TEST_F(NavigationPolicy, letsTheUserChooseFilesForThePage)
{
    using Files = std::optional<std::vector<URL>>;
    std::vector<Files> chosen;
    const auto choose = [&](const Files& files) { chosen.push_back(files); };
    auto& delegate = *webView->uiDelegate.lock();
    delegate.runOpenPanel(*webView, {.allowsMultipleSelection = false}, choose);
    delegate.runOpenPanel(*webView, {.allowsMultipleSelection = true}, choose);

    auto& panels = platform.openPanels();
    ASSERT_EQ(panels.shown.size(), 2u);
    for (const auto& panel : panels.shown) {
        EXPECT_TRUE(panel.canChooseFiles);
        EXPECT_FALSE(panel.canChooseDirectories);
    }
    EXPECT_FALSE(panels.shown[0].allowsMultipleSelection);
    EXPECT_TRUE(panels.shown[1].allowsMultipleSelection);
    EXPECT_TRUE(chosen.empty());

    const std::vector files = {URL::fileURL("/a.csv"), URL::fileURL("/b c.csv")};
    panels.simulateCancel();
    panels.simulateChoice(files);
    EXPECT_EQ(chosen, (std::vector<Files>{std::nullopt, files}));
}
