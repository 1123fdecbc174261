#pragma once

#include "platform/gtk/printing/PageOutput.h"
#include "platform/gtk/webkit/GtkUserContentController.h"
#include "platform/gtk/webkit/LoadLimiter.h"
#include "platform/gtk/webkit/PageSearch.h"
#include "platform/gtk/webkit/PropertyObservers.h"
#include "platform/webkit/WKWebView.h"
#include "platform/webkit/WKWebViewConfiguration.h"

namespace gtk {

class WebEngine;

// A web view of the engine that is laid out and never shown. It loads when its turn has come, and
// what becomes of the load is told to the navigation delegate and nothing else: there is no panel
// and no second attempt.
class OffscreenWebView final : public platform::WKWebView {
public:
    OffscreenWebView(WebEngine& engine, platform::NSSize size,
        const platform::WKWebViewConfiguration& configuration);

    OffscreenWebView(const OffscreenWebView&) = delete;
    OffscreenWebView& operator=(const OffscreenWebView&) = delete;

    // The engine's view.
    WebKitWebView* native() const { return view_.get(); }

    // Told by the window, for as long as it holds the view.
    void setWindow(platform::NSWindow* window) { window_ = window; }

    platform::NSWindow* window() const override { return window_; }
    platform::NSRect bounds() const override { return {{}, size_}; }

    void load(const platform::URLRequest& request) override;
    void loadHTMLString(
        const std::string& html, const std::optional<platform::URL>& baseURL) override;
    void evaluateJavaScript(const std::string& script) override;
    void find(const std::string& text, const platform::WKFindConfiguration& configuration,
        std::function<void(const platform::WKFindResult&)> completion) override;
    void createPDF(const platform::WKPDFConfiguration& configuration,
        std::function<void(const PageDocument::Result&)> completion) override;
    std::shared_ptr<platform::NSPrintOperation> printOperation(
        const platform::NSPrintInfo& printInfo) override;

    void goBack() override { webkit_web_view_go_back(view_.get()); }
    void goForward() override { webkit_web_view_go_forward(view_.get()); }
    bool canGoBack() const override { return webkit_web_view_can_go_back(view_.get()); }
    bool canGoForward() const override { return webkit_web_view_can_go_forward(view_.get()); }
    bool isLoading() const override { return webkit_web_view_is_loading(view_.get()); }
    double estimatedProgress() const override;
    std::string title() const override;
    Observation observe(Property property, std::function<void()> handler) override;

    // Who is never seen has no gestures, scrollers, background and zoom.
    void setAllowsBackForwardNavigationGestures(bool) override { }
    void setAllowsMagnification(bool) override { }
    void setUsesOverlayScrollers(bool) override { }
    void setDrawsBackground(bool) override { }
    void setPageZoom(double) override { }
    void setCustomUserAgent(const std::string& userAgent) override;

private:
    void watch();
    void awaitTurn(std::function<void()> begin);
    void fail(const std::string& reason);

    static void loadChanged(WebKitWebView*, WebKitLoadEvent event, OffscreenWebView* self);
    static gboolean loadFailed(
        WebKitWebView*, WebKitLoadEvent, char* address, GError* error, OffscreenWebView* self);
    static gboolean certificateFailed(WebKitWebView*, char* address, GTlsCertificate*,
        GTlsCertificateFlags, OffscreenWebView* self);
    static void processDied(
        WebKitWebView*, WebKitWebProcessTerminationReason, OffscreenWebView* self);

    const platform::NSSize size_;
    const std::shared_ptr<LoadLimiter> limiter_;
    GtkUserContentController content_;
    const ObjectPointer<WebKitWebView> view_;
    PageSearch search_;
    PropertyObservers observers_;
    PageOutput output_;
    platform::NSWindow* window_ = nullptr;
    std::unique_ptr<LoadLimiter::Turn> turn_; // from the load to the end of the work
    Timer answerTimer_;
    bool hasCommitted_ = false; // a document of this load is there
    bool hasFailed_ = false; // this load, which the engine tells of once more as finished
    SignalHandlers signals_;
};

} // namespace gtk
