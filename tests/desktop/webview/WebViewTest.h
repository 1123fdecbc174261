#pragma once

#include "harness/MainLoop.h"
#include "platform/foundation/JSONSerialization.h"
#include "platform/gtk/webkit/FailurePanel.h"
#include "platform/gtk/webkit/GtkWebView.h"
#include "platform/gtk/webkit/WebEngine.h"
#include "webview/PageServer.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <gtkmm/application.h>
#include <gtkmm/window.h>

namespace platform {

// How a failed expectation shows a value.
inline void PrintTo(const Value& value, std::ostream* stream)
{
    *stream << JSONSerialization::encode(value).value_or("(no JSON)");
}

} // namespace platform

namespace desktop {

// Keeps what pages post.
struct Recorder final : platform::WKScriptMessageHandler {
    void userContentControllerDidReceiveScriptMessage(
        const platform::WKScriptMessage& message) override
    {
        messages.push_back(message);
    }

    // What was posted last; null before.
    platform::Value last() const { return messages.empty() ? nullptr : messages.back().body; }

    std::vector<platform::WKScriptMessage> messages;
};

// One web view in a window, and a server with a page at "/", whose title is "Home".
class WebViewTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        static const auto application = Gtk::Application::create();
        ASSERT_TRUE(gtk_init_check());
    }

    WebViewTest()
    {
        g_autofree char* folder = g_dir_make_tmp("velmaro-web-XXXXXX", nullptr);
        folder_ = folder;
        server.pages["/"] = {.body = "<title>Home</title><p>Home"};
        startEngine();
    }

    ~WebViewTest() override
    {
        closeView();
        engine.reset();
        std::error_code error;
        std::filesystem::remove_all(folder_, error);
    }

    std::string writeFile(const std::string& name, const std::string& text) const
    {
        const auto path = folder_ / name;
        std::ofstream(path) << text;
        return path;
    }

    // An engine on the same folders as the one before, which is gone with its view.
    void startEngine(const std::string& trusted = "server.pem")
    {
        closeView();
        engine.reset();
        const gtk::StandardPaths paths{
            .config = folder_ / "config", .data = folder_ / "data", .cache = folder_ / "cache"};
        const auto trust = std::make_shared<gtk::HostTrust>(
            std::vector<std::string>{"localhost"}, VELMARO_CERTIFICATES "/" + trusted);
        engine = std::make_unique<gtk::WebEngine>(paths, trust, false);
        engine->setPatience(patience);
    }

    // A shown view with a "probe" handler.
    void openView()
    {
        configuration.websiteDataStore = platform::WKWebsiteDataStore::defaultDataStore;
        configuration.userContentController.scriptMessageHandlers = {{"probe", probe}};
        view = std::make_shared<gtk::GtkWebView>(*engine, configuration);
        view->setShown(true);
        window = std::make_unique<Gtk::Window>();
        window->set_default_size(800, 600);
        window->set_child(view->nativeWidget());
        window->present();
    }

    void closeView()
    {
        if (window)
            window->unset_child();
        view.reset();
        window.reset();
    }

    void load(const std::string& path)
    {
        view->load({.url = *platform::URL::fromString(server.url(path))});
    }

    [[nodiscard]] bool loads(const std::string& path, const std::string& title = "Home")
    {
        load(path);
        return isReadyWith(title);
    }

    [[nodiscard]] bool isReadyWith(const std::string& title)
    {
        return until([&] { return engine->isVisiblePageReady() && view->title() == title; });
    }

    // What `expression` is in the page.
    platform::Value valueOf(const std::string& expression)
    {
        const auto count = probe->messages.size();
        view->evaluateJavaScript("webkit.messageHandlers.probe.postMessage(" + expression + ")");
        EXPECT_TRUE(until([&] { return probe->messages.size() > count; })) << expression;
        return probe->last();
    }

    WebKitWebView* native() const
    {
        return WEBKIT_WEB_VIEW(gtk_overlay_get_child(GTK_OVERLAY(view->nativeWidget().gobj())));
    }

    // The panel for failed loads; null while there is none.
    gtk::FailurePanel* panel() const
    {
        for (auto* child = view->nativeWidget().get_first_child(); child;
             child = child->get_next_sibling()) {
            if (auto* found = dynamic_cast<gtk::FailurePanel*>(child))
                return found;
        }
        return nullptr;
    }

    [[nodiscard]] bool failsWith(const std::string& title)
    {
        return until([&] { return panel() && view->title() == title && !view->isLoading(); });
    }

    // Of the engine, for this test alone.
    const std::filesystem::path& folder() const { return folder_; }

    gtk::PageTimeouts patience;
    PageServer server;
    platform::WKWebViewConfiguration configuration;
    std::unique_ptr<gtk::WebEngine> engine;
    std::shared_ptr<Recorder> probe = std::make_shared<Recorder>();
    std::shared_ptr<gtk::GtkWebView> view;
    std::unique_ptr<Gtk::Window> window;

private:
    std::filesystem::path folder_;
};

} // namespace desktop
