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
    ASSERT_TRUE(service.setServiceOrigin("https://Intranet.Example:8443"));
    ASSERT_TRUE(service.setPaymentCheckoutHosts("Pay.example Sandbox.Pay.test"));
    for (const auto* host :
        {"INTRANET.example", "a.intranet.EXAMPLE", "x.PAY.example", "sandbox.pay.test"})
        EXPECT_TRUE(isAllowedHost(host, service)) << host;
    for (const auto* host : {"", "velmaro.example", "example", "xintranet.example", "pay.test",
             "intranet.example.", "pay.example.test"})
        EXPECT_FALSE(isAllowedHost(host, service)) << host;
    EXPECT_FALSE(isAllowedHost(std::nullopt, service));
    for (const auto* hosts : {"", "one", "one two three"})
        EXPECT_FALSE(service.setPaymentCheckoutHosts(hosts)) << hosts;
}

TEST_F(NavigationPolicy, leavesForeignPagesAndCallsToTheSystem)
{
    for (const auto& [written, navigation, newWindow, delivered] : navigationAddresses()) {
        if (delivered.empty())
            continue;
        EXPECT_EQ(decision(action(delivered)),
            navigation == AddressUse::inTab ? WKNavigationActionPolicy::allow
                                            : WKNavigationActionPolicy::cancel)
            << written;
        const bool isOpened = takeOpened() == std::vector{*action(delivered).requestURL};
        EXPECT_EQ(isOpened, navigation == AddressUse::withSystem) << written;

        EXPECT_EQ(webView->uiDelegate.lock()->createWebView(*webView, action(delivered)), nullptr);
        const auto loads = std::exchange(webView->loads, {});
        EXPECT_EQ(loads.size(), newWindow == AddressUse::inTab ? 1u : 0u) << written;
        EXPECT_EQ(takeOpened().size(), newWindow == AddressUse::withSystem ? 1u : 0u) << written;
    }
}

TEST_F(NavigationPolicy, doesNotAskWhereADownloadComesFrom)
{
    for (const auto* address : {"https://elsewhere.example/a.csv", "blob:null/1"}) {
        auto download = action(address);
        download.shouldPerformDownload = true;
        EXPECT_EQ(decision(download), WKNavigationActionPolicy::download);
    }
    EXPECT_EQ(decision({.requestURL = {}, .shouldPerformDownload = false}),
        WKNavigationActionPolicy::cancel);
    EXPECT_TRUE(takeOpened().empty());
}

TEST_F(NavigationPolicy, letsTheUserChooseFilesForThePage)
{
    using Files = std::optional<std::vector<URL>>;
    std::vector<Files> chosen;
    for (const bool severalAtOnce : {false, true}) {
        webView->uiDelegate.lock()->runOpenPanel(*webView,
            {.allowsMultipleSelection = severalAtOnce},
            [&](const Files& files) { chosen.push_back(files); });
        const auto& panel = platform.openPanels().shown.back();
        EXPECT_TRUE(panel.canChooseFiles);
        EXPECT_FALSE(panel.canChooseDirectories);
        EXPECT_EQ(panel.allowsMultipleSelection, severalAtOnce);
    }
    const std::vector files = {URL::fileURL("/a.csv"), URL::fileURL("/b c.csv")};
    platform.openPanels().simulateCancel();
    platform.openPanels().simulateChoice(files);
    EXPECT_EQ(chosen, (std::vector<Files>{std::nullopt, files}));
}
