#include "webview/WebViewTest.h"

#include "harness/Desktop.h"
#include "harness/Files.h"

#include <algorithm>
#include <gtkmm/settings.h>

namespace desktop {

TEST_F(WebViewTest, tellsHowFarALoadIs)
{
    openView();
    std::vector<double> progress;
    const auto steps = view->observe(platform::WKWebView::Property::estimatedProgress,
        [&] { progress.push_back(view->estimatedProgress()); });
    ASSERT_TRUE(loads("/"));
    EXPECT_EQ(progress.front(), 0);
    EXPECT_EQ(progress.back(), 1);
}

TEST_F(WebViewTest, theNextRunHasWhatWasStoredAndAsksWhetherAPageIsStillGood)
{
    server.pages["/"].headers = {{"ETag", "\"one\""}, {"Cache-Control", "max-age=3600"},
        {"Set-Cookie", "kept=yes; Max-Age=3600; Secure; HttpOnly"}};
    openView();
    ASSERT_TRUE(loads("/"));
    EXPECT_EQ(valueOf("localStorage.kept = 'too'"), "too");
    ASSERT_TRUE(until([this] { // the cache is written some time after a page has been loaded
        return std::ranges::any_of(filesBelow(folder() / "cache"),
            [](const auto& file) { return file.string().find("/Records/") != std::string::npos; });
    }));
    startEngine();
    openView();

    view->load({.url = *platform::URL::fromString(server.url("/")),
        .cachePolicy = platform::URLRequest::CachePolicy::reloadRevalidatingCacheData});

    ASSERT_TRUE(isReadyWith("Home"));
    ASSERT_EQ(server.requestCount("/"), 2u);
    EXPECT_EQ(server.requests.back().headers["if-none-match"], "\"one\"");
    EXPECT_EQ(server.requests.back().headers["cookie"], "kept=yes");
    EXPECT_EQ(valueOf("localStorage.kept"), "too");
}

TEST_F(WebViewTest, userScriptsRunInTheMainFrameBeforeAndAfterThePagesOwn)
{
    using Time = platform::WKUserScript::InjectionTime;
    server.pages["/"].body = "<title>Home</title><script>seen += ' page'</script>"
                             "<iframe srcdoc='<script>parent.inner = typeof seen</script>'>";
    configuration.userContentController.userScripts = {
        {.source = "seen = '\u00e9'", .injectionTime = Time::atDocumentStart},
        {.source = "seen += ' ' + document.readyState", .injectionTime = Time::atDocumentEnd},
    };
    openView();
    ASSERT_TRUE(loads("/"));
    EXPECT_TRUE(until([&] { return valueOf("seen") == "\u00e9 page interactive"; }));
    EXPECT_TRUE(until([&] { return valueOf("window.inner") == "undefined"; }));
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
    view->evaluateJavaScript("setInterval(() => webkit.messageHandlers.probe.postMessage(1), 1)");
    ASSERT_TRUE(until([&] { return !probe->messages.empty(); }));

    closeView();

    EXPECT_TRUE(gone.expired());
    EXPECT_FALSE(engine->isVisiblePageReady());
}

} // namespace desktop
