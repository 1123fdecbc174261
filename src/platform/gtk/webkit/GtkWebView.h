#pragma once

#include "platform/gtk/ui/NativeView.h"
#include "platform/gtk/webkit/PageKeeper.h"
#include "platform/gtk/webkit/PageSearch.h"
#include "platform/gtk/webkit/PropertyObservers.h"
#include "platform/gtk/webkit/UserContent.h"
#include "platform/webkit/WKWebView.h"
#include "platform/webkit/WKWebViewConfiguration.h"

namespace gtk {

class FrontPage;
class WebEngine;

// A web view of the engine, in an area of its own that it shares with the panel for failed loads.
class GtkWebView final : public platform::WKWebView, public NativeView {
public:
    GtkWebView(WebEngine& engine, const platform::WKWebViewConfiguration& configuration);
    ~GtkWebView() override;

    GtkWebView(const GtkWebView&) = delete;
    GtkWebView& operator=(const GtkWebView&) = delete;

    platform::NSWindow* window() const override;
    Gtk::Widget& nativeWidget() override { return area_; }
    void setShown(bool isShown) override;

    void load(const platform::URLRequest& request) override { keeper_.load(request); }
    void evaluateJavaScript(const std::string& script) override;
    void find(const std::string& text, const platform::WKFindConfiguration& configuration,
        std::function<void(const platform::WKFindResult&)> completion) override
    {
        search_.find(text, configuration, std::move(completion));
    }
    void goBack() override;
    void goForward() override;

    bool canGoBack() const override;
    bool canGoForward() const override;
    bool isLoading() const override;
    double estimatedProgress() const override;
    std::string title() const override;
    Observation observe(Property property, std::function<void()> handler) override;

    void setPageZoom(double factor) override;
    void setCustomUserAgent(const std::string& userAgent) override;
    void setAllowsBackForwardNavigationGestures(bool isAllowed) override;
    void setAllowsMagnification(bool isAllowed) override;
    void setUsesOverlayScrollers(bool isOverlay) override;
    void setDrawsBackground(bool isDrawn) override;

private:
    void watch();
    void changed(Property property) { observers_.notify(property); }
    void titleChanged();
    void historyChanged();

    const std::shared_ptr<FrontPage> frontPage_;
    UserContent content_;
    ObjectPointer<WebKitWebView> spare_; // until the first load begins
    const ObjectPointer<WebKitWebView> view_;
    Gtk::Overlay area_;
    PageKeeper keeper_;
    PageSearch search_;
    PropertyObservers observers_;
    SignalHandlers signals_;
};

} // namespace gtk
