#include "webview/WebViewTest.h"

namespace desktop {

class WebViewRecoveryTest : public WebViewTest {
protected:
    WebViewRecoveryTest()
    {
        patience.firstRetry = 3600; // only where a test is about it
        configuration.userContentController.userScripts = {
            {.source = "webkit.messageHandlers.probe.postMessage('hello ' + location.href)",
                .injectionTime = platform::WKUserScript::InjectionTime::atDocumentStart}};
        server.pages["/two"] = {.body = "<title>Two</title>"};
        server.pages["/file"] = {.body = "bytes",
            .headers = {{"Content-Disposition", "attachment"}, {"Content-Type", "text/csv"}}};
        applyPatience();
    }

    void applyPatience() { engine->setPatience(patience); }

    void killProcess() { webkit_web_view_terminate_web_process(native()); }

    // How many documents have been shown so far: each says hello.
    std::size_t documents() const { return probe->messages.size(); }

    void pressTryAgain()
    {
        const std::function<bool(Gtk::Widget&)> press = [&](Gtk::Widget& widget) {
            if (auto* button = dynamic_cast<Gtk::Button*>(&widget))
                return gtk_widget_activate(GTK_WIDGET(button->gobj())) != FALSE;
            for (auto* child = widget.get_first_child(); child; child = child->get_next_sibling()) {
                if (press(*child))
                    return true;
            }
            return false;
        };
        ASSERT_TRUE(panel());
        EXPECT_TRUE(press(*panel()));
    }
};

TEST_F(WebViewRecoveryTest, aProcessThatDiesBehindIsReplacedAndTheNextIsGivenUpUntilSomebodyAsks)
{
    openView();
    ASSERT_TRUE(loads("/"));
    view->setShown(false);
    killProcess();
    ASSERT_TRUE(until([&] { return view->title().empty(); }));
    EXPECT_EQ(documents(), 1u);
    view->setShown(true);
    ASSERT_TRUE(isReadyWith("Home"));

    killProcess();
    ASSERT_TRUE(failsWith("Page Stopped"));
    EXPECT_FALSE(engine->isVisiblePageReady());
    EXPECT_EQ(documents(), 2u);

    pressTryAgain();
    EXPECT_TRUE(isReadyWith("Home"));
}

TEST_F(WebViewRecoveryTest, aPageUnderThePanelIsMuteAndBackLeadsToIt)
{
    openView();
    ASSERT_TRUE(loads("/"));
    view->evaluateJavaScript(
        "setInterval(() => webkit.messageHandlers.probe.postMessage('tick'), 1);"
        "location.href = '"
        + server.url("/two", "nowhere.invalid") + "'");
    ASSERT_TRUE(failsWith("Page Unavailable"));
    EXPECT_TRUE(view->canGoBack());
    const auto count = probe->messages.size();
    bool wasLoading = false;
    const auto attempt = view->observe(platform::WKWebView::Property::isLoading,
        [&] { wasLoading = wasLoading || view->isLoading(); });
    view->evaluateJavaScript("1");
    ASSERT_TRUE(until([&] { return wasLoading; }));
    ASSERT_TRUE(failsWith("Page Unavailable"));
    EXPECT_EQ(probe->messages.size(), count);

    view->goBack();

    EXPECT_TRUE(isReadyWith("Home"));
    EXPECT_TRUE(until([&] { return probe->messages.size() > count; }));
    EXPECT_FALSE(panel());
}

TEST_F(WebViewRecoveryTest, aServerThatIsDownShowsThePanelAndNothingReachesTheBridges)
{
    server.stop();
    openView();
    load("/#fuel");
    ASSERT_TRUE(failsWith("Page Unavailable"));
    EXPECT_FALSE(engine->isVisiblePageReady());
    EXPECT_TRUE(probe->messages.empty());
    EXPECT_FALSE(view->canGoBack());

    server.restart();
    pressTryAgain();
    ASSERT_TRUE(isReadyWith("Home"));
    EXPECT_EQ(valueOf("location.hash"), "#fuel");

    view->evaluateJavaScript("kept = true");
    server.stop();
    view->evaluateJavaScript("location.reload()");
    ASSERT_TRUE(failsWith("Page Unavailable"));
    server.restart();
    view->evaluateJavaScript("location.reload()");
    ASSERT_TRUE(isReadyWith("Home"));
    EXPECT_EQ(valueOf("location.hash"), "#fuel");
    EXPECT_EQ(valueOf("typeof kept"), "undefined");
}

TEST_F(WebViewRecoveryTest, aFailedPageComesBackByItselfOrAtAnyOccasion)
{
    struct Case {
        const char* name;
        std::function<void()> occasion;
        double firstRetry = 3600; // seconds
    };
    const Case cases[] = {
        {"time", [] {}, 0.05},
        {"network",
            [this] {
                view->setShown(false);
                g_signal_emit_by_name(g_network_monitor_get_default(), "network-changed", TRUE);
            }},
        {"tab", [this] { view->setShown(false), view->setShown(true); }},
        {"script", [this] { view->evaluateJavaScript("showPage('fuel')"); }},
    };
    for (const auto& [name, occasion, firstRetry] : cases) {
        SCOPED_TRACE(name);
        patience.firstRetry = firstRetry;
        startEngine();
        server.stop();
        openView();
        load("/two");
        ASSERT_TRUE(failsWith("Page Unavailable"));
        server.restart();
        occasion();
        EXPECT_TRUE(until([&] { return view->title() == "Two"; }));
    }
}

TEST_F(WebViewRecoveryTest, aCertificateOfTheUsersAuthorityIsAcceptedForItsHostAlone)
{
    for (const auto* trusted : {"server.pem", "authority.pem"}) {
        startEngine(trusted);
        openView();
        EXPECT_TRUE(loads("/"));
        const auto requests = server.requestCount("/");
        const auto messages = probe->messages.size();
        view->load({.url = *platform::URL::fromString(server.url("/", "other.localhost"))});
        EXPECT_TRUE(failsWith("Connection Not Secure"));
        EXPECT_EQ(server.requestCount("/"), requests);
        EXPECT_EQ(probe->messages.size(), messages);
    }
}

TEST_F(WebViewRecoveryTest, anAnswerThatDoesNotComeOrNotToItsEndIsCovered)
{
    struct Case {
        const char* name;
        PageServer::Page page;
        std::function<void()> load;
    };
    constexpr double limit = 2; // seconds; the page that comes in the end must be sooner
    const Case cases[] = {
        {"silence", {.body = "", .isSilent = true},
            [this] {
                view->load({.url = *platform::URL::fromString(server.url("/bad")),
                    .timeoutInterval = limit});
            }},
        {"silence after a click", {.body = "", .isSilent = true},
            [this] { view->evaluateJavaScript("location.href = '/bad'"); }},
        {"half a page",
            {.body = "<title>Half</title>" + std::string(100'000, 'x'), .isCutOff = true},
            [this] { load("/bad"); }},
    };
    patience.answer = limit;
    applyPatience();
    openView();
    for (const auto& [name, page, load] : cases) {
        SCOPED_TRACE(name);
        server.pages["/bad"] = page;
        ASSERT_TRUE(loads("/"));
        load();
        ASSERT_TRUE(failsWith("Page Unavailable"));
        server.pages["/bad"] = {.body = "<title>Good</title>"};
        pressTryAgain();
        EXPECT_TRUE(isReadyWith("Good"));
    }
}

TEST_F(WebViewRecoveryTest, anAddressWithoutAPageIsTriedAgainOnlyByAPerson)
{
    openView();
    load("/file");
    ASSERT_TRUE(failsWith("Page Unavailable"));

    view->setShown(false);
    view->setShown(true);
    g_signal_emit_by_name(g_network_monitor_get_default(), "network-changed", TRUE);
    EXPECT_FALSE(view->isLoading());
    EXPECT_EQ(server.requestCount("/file"), 1u);

    server.pages["/file"] = {.body = "<title>A page</title>"};
    pressTryAgain();
    EXPECT_TRUE(isReadyWith("A page"));
}

} // namespace desktop
