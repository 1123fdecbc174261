// What the engine brings before the delegates of a web view, and what it makes of their decisions.

#include "platform/webkit/WKNavigationDelegate.h"
#include "shared/NavigationAddresses.h"
#include "webview/WebViewTest.h"

namespace desktop {

using platform::URL;
using platform::WKNavigationAction;
using platform::WKNavigationActionPolicy;

namespace {

// Decides what it is told to, and keeps what it was asked.
struct Delegate final : platform::WKNavigationDelegate {
    void decidePolicy(platform::WKWebView&, const WKNavigationAction& action,
        const std::function<void(WKNavigationActionPolicy)>& decide) override
    {
        navigations.push_back(action);
        decide(policy(action));
    }

    // The addresses asked for so far, which are forgotten.
    std::vector<std::string> takeAddresses()
    {
        std::vector<std::string> addresses;
        for (const auto& action : std::exchange(navigations, {}))
            addresses.push_back(action.requestURL ? action.requestURL->absoluteString() : "(none)");
        return addresses;
    }

    std::function<WKNavigationActionPolicy(const WKNavigationAction&)> policy = [](const auto&) {
        return WKNavigationActionPolicy::allow;
    };
    std::vector<WKNavigationAction> navigations;
};

void noteDownload(
    WebKitNetworkSession*, WebKitDownload* download, std::vector<std::string>* addresses)
{
    addresses->push_back(webkit_uri_request_get_uri(webkit_download_get_request(download)));
}

} // namespace

class WebViewPolicyTest : public WebViewTest {
protected:
    void SetUp() override
    {
        openView();
        view->navigationDelegate = delegate;
        ASSERT_TRUE(loads("/"));
        delegate->navigations.clear();
    }

    std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();
};

TEST_F(WebViewPolicyTest, addressesArriveAsTheEngineUnderstandsThem)
{
    delegate->policy = [](const auto&) { return WKNavigationActionPolicy::cancel; };
    for (const auto& expected : navigationAddresses()) {
        const platform::Value written = expected.written;
        view->evaluateJavaScript("var link = document.createElement('a'); link.href = "
            + platform::JSONSerialization::encode(written).value()
            + "; document.body.append(link); link.click();"
              "link.href = 'about:after'; link.click()");
        std::vector<std::string> delivered;
        EXPECT_TRUE(until([&] {
            for (auto& address : delegate->takeAddresses())
                delivered.push_back(std::move(address));
            return !delivered.empty() && delivered.back() == "about:after";
        }));
        delivered.pop_back();
        if (expected.delivered.empty()) {
            EXPECT_TRUE(delivered.empty() || delivered.front() == "(none)") << expected.written;
            continue;
        }
        const auto url = URL::encodingInvalidCharacters(expected.delivered);
        EXPECT_EQ(delivered, std::vector{url->absoluteString()}) << expected.written;
    }
}

TEST_F(WebViewPolicyTest, whatIsToBeSavedBecomesADownloadAndNothingElseDoes)
{
    server.pages["/text"] = {.body = "a,b", .headers = {{"Content-Type", "text/csv"}}};
    server.pages["/file"] = {
        .body = "a,b", .headers = {{"Content-Disposition", "attachment; filename=a.csv"}}};
    server.pages["/bytes"] = {
        .body = "bytes", .headers = {{"Content-Type", "application/octet-stream"}}};
    server.pages["/nothing"] = {.body = "", .status = 204};
    server.pages["/failure"] = {
        .body = "bytes", .headers = {{"Content-Type", "application/octet-stream"}}, .status = 500};
    delegate->policy = [](const WKNavigationAction& action) {
        if (action.shouldPerformDownload)
            return WKNavigationActionPolicy::download;
        return action.requestURL->scheme() == "https" ? WKNavigationActionPolicy::allow
                                                      : WKNavigationActionPolicy::cancel;
    };
    std::vector<std::string> downloads;
    g_signal_connect(webkit_web_view_get_network_session(native()), "download-started",
        G_CALLBACK(noteDownload), &downloads);
    const auto run = [&](const std::string& script) {
        view->evaluateJavaScript(
            "var blob = URL.createObjectURL(new Blob(['a'], { type: 'text/html' }));"
            "function go(address, name) { const link = document.createElement('a');"
            "  link.href = address; if (name) link.download = name;"
            "  document.body.append(link); link.click(); }"
            "function frame(address) { const frame = document.createElement('iframe');"
            "  frame.src = address; document.body.append(frame); }"
            + script);
    };

    for (const auto* script :
        {"go('data:text/html,a')", "frame(blob)", "go('/nothing')", "go('/failure')"}) {
        const auto count = delegate->navigations.size();
        run(script);
        EXPECT_TRUE(until([&] { return delegate->navigations.size() > count; })) << script;
        EXPECT_TRUE(until([&] { return !view->isLoading(); })) << script;
        EXPECT_EQ(valueOf("document.title"), "Home") << script;
        EXPECT_FALSE(panel()) << script;
    }

    const std::pair<const char*, std::string> table[] = {
        {"go('/text', 'b.csv')", server.url("/text")},
        {"go(blob, 'b.csv')", "blob:"},
        {"go('/file')", server.url("/file")},
        {"frame('/bytes')", server.url("/bytes")},
    };
    std::size_t count = 0;
    for (const auto& [script, address] : table) {
        run(script);
        ASSERT_TRUE(until([&] { return downloads.size() > count; })) << script;
        EXPECT_EQ(downloads.size(), ++count) << script;
        EXPECT_EQ(downloads.back().substr(0, address.size()), address) << script;
        EXPECT_EQ(valueOf("document.title"), "Home") << script;
        EXPECT_FALSE(panel()) << script;
    }
}

} // namespace desktop
