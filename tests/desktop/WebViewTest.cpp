#include "webview/WebViewTest.h"

#include "harness/Desktop.h"

#include <algorithm>
#include <gtkmm/settings.h>

namespace desktop {

using CachePolicy = platform::URLRequest::CachePolicy;
using Property = platform::WKWebView::Property;

TEST_F(WebViewTest, loadsAPageAndTellsWhatChanges)
{
    openView();
    std::vector<std::string> titles;
    std::vector<double> progress;
    bool wasLoading = false;
    const auto title = view->observe(Property::title, [&] { titles.push_back(view->title()); });
    const auto steps = view->observe(
        Property::estimatedProgress, [&] { progress.push_back(view->estimatedProgress()); });
    const auto loading =
        view->observe(Property::isLoading, [&] { wasLoading = wasLoading || view->isLoading(); });
    int lateCalls = 0;
    view->observe(Property::title, [&] { ++lateCalls; }).reset();
    EXPECT_EQ(titles, std::vector<std::string>{""});
    EXPECT_EQ(progress, std::vector<double>{0});

    ASSERT_TRUE(loads("/"));

    EXPECT_EQ(titles.back(), "Home");
    EXPECT_EQ(progress.back(), 1);
    EXPECT_TRUE(wasLoading);
    EXPECT_FALSE(view->isLoading());
    EXPECT_EQ(lateCalls, 1) << "an observation ends with its token";
}

TEST_F(WebViewTest, theNextRunAsksTheServerWhetherAPageIsStillGood)
{
    server.pages["/"].headers = {{"ETag", "\"one\""}, {"Cache-Control", "max-age=3600"}};
    openView();
    ASSERT_TRUE(loads("/"));
    ASSERT_TRUE(until([this] { return hasCachedSomething(); }));
    startEngine();
    openView();

    load("/", CachePolicy::reloadRevalidatingCacheData);

    ASSERT_TRUE(isReadyWith("Home"));
    ASSERT_EQ(server.requestCount("/"), 2u);
    EXPECT_EQ(server.requests.back().headers["if-none-match"], "\"one\"");
}

TEST_F(WebViewTest, cookiesAndStorageAreThereInTheNextRun)
{
    server.pages["/"].headers = {{"Set-Cookie", "kept=yes; Max-Age=3600; Secure; HttpOnly"}};
    openView();
    ASSERT_TRUE(loads("/"));
    EXPECT_EQ(
        valueOf("(localStorage.setItem('kept', 'too'), localStorage.getItem('kept'))"), "too");
    startEngine();
    openView();

    ASSERT_TRUE(loads("/"));

    EXPECT_EQ(server.requests.back().headers["cookie"], "kept=yes");
    EXPECT_EQ(valueOf("localStorage.getItem('kept')"), "too");
}

TEST_F(WebViewTest, aViewWithoutPersistentStoreLeavesNothingBehind)
{
    server.pages["/"].headers = {{"Set-Cookie", "kept=yes; Max-Age=3600; Secure"}};
    configuration.userContentController.scriptMessageHandlers = {{"probe", probe}};
    const auto openPrivately = [this] {
        configuration.websiteDataStore = platform::WKWebsiteDataStore::nonPersistent;
        view = std::make_shared<gtk::GtkWebView>(*engine, configuration);
        view->setShown(true);
        return loads("/");
    };
    ASSERT_TRUE(openPrivately());
    EXPECT_EQ(valueOf("document.cookie"), "kept=yes");
    view.reset();

    ASSERT_TRUE(openPrivately());

    EXPECT_FALSE(server.requests.back().headers.contains("cookie"));
}

TEST_F(WebViewTest, userScriptsRunInTheMainFrameBeforeAndAfterThePagesOwn)
{
    using Time = platform::WKUserScript::InjectionTime;
    server.pages["/"].body = "<title>Home</title><script>seen.push('page')</script>"
                             "<iframe src='/frame'></iframe>";
    server.pages["/frame"].body =
        "<script>parent.seen.push(typeof seen === 'undefined' ? 'clean' : 'scripted')</script>";
    configuration.userContentController.userScripts = {
        {.source = "window.seen = ['start \\u00e9\u00e9'];",
            .injectionTime = Time::atDocumentStart},
        {.source = "seen.push('end ' + document.readyState);",
            .injectionTime = Time::atDocumentEnd},
    };
    openView();
    ASSERT_TRUE(loads("/"));

    ASSERT_TRUE(until([&] { return valueOf("seen.length") == platform::Value(4); }));
    EXPECT_EQ(valueOf("seen[0]"), "start \u00e9\u00e9");
    EXPECT_EQ(valueOf("seen[1]"), "page");
    EXPECT_EQ(valueOf("seen.includes('end interactive')"), true);
    EXPECT_EQ(valueOf("seen.includes('clean')"), true);
}

TEST_F(WebViewTest, looksAndIntroducesItselfAsTheApplicationWants)
{
    server.pages["/"].body = "<title>Home</title><div style='height: 9000px'></div>";
    openView();
    view->setUsesOverlayScrollers(true);
    view->setDrawsBackground(false);
    view->setCustomUserAgent("Something/1.0 Else/2");
    ASSERT_TRUE(loads("/"));
    EXPECT_EQ(server.requests.back().headers["user-agent"], "Something/1.0 Else/2");
    EXPECT_EQ(valueOf("innerWidth - document.documentElement.clientWidth"), 0);
    for (const bool isDark : {true, false}) {
        Gtk::Settings::get_default()->property_gtk_application_prefer_dark_theme() = isDark;
        GdkRGBA color;
        webkit_web_view_get_background_color(native(), &color);
        EXPECT_EQ(color.red < 0.5, isDark);
    }
}

TEST_F(WebViewTest, nothingIsLeftOfASearchOnceTheSelectionIsCleared)
{
    server.pages["/"].body = "<title>Home</title><h1>one two one</h1>";
    openView();
    window->set_title("Search");
    ASSERT_TRUE(loads("/"));
    const auto isColorful = [] { // as matches are, in a page of black and white
        const auto shown = Desktop::window("Search");
        const auto picture = shown ? shown->picture() : std::nullopt;
        return picture && std::ranges::any_of(picture->pixels, [](std::uint32_t pixel) {
            const auto [least, most] = std::minmax({pixel >> 16, pixel >> 8 & 0xff, pixel & 0xff});
            return most - least > 0x60;
        });
    };
    EXPECT_FALSE(isColorful());
    for (int count = 0; count < 2; ++count) {
        bool isFound = false;
        view->find(
            "one", {.wraps = true}, [&](const auto& result) { isFound = result.matchFound; });
        EXPECT_TRUE(until([&] { return isFound && isColorful(); }));
    }
    view->evaluateJavaScript("getSelection().removeAllRanges()");
    EXPECT_TRUE(until([&] { return !isColorful(); }));
}

TEST_F(WebViewTest, whatComesAfterTheViewHasGoneReachesNobody)
{
    openView();
    ASSERT_TRUE(loads("/"));
    std::weak_ptr<gtk::GtkWebView> gone = view;
    auto* widget = GTK_WIDGET(native());
    g_object_add_weak_pointer(G_OBJECT(widget), reinterpret_cast<gpointer*>(&widget));
    view->evaluateJavaScript("setInterval(() => webkit.messageHandlers.probe.postMessage(1), 1)");
    ASSERT_TRUE(until([&] { return !probe->messages.empty(); }));

    closeView();

    EXPECT_TRUE(gone.expired());
    EXPECT_TRUE(until([&] { return !widget; }));
    EXPECT_FALSE(engine->isVisiblePageReady());
}

} // namespace desktop
