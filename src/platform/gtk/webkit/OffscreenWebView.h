#pragma once

#include "platform/gtk/webkit/EngineView.h"
#include "platform/gtk/webkit/LoadLimiter.h"

namespace gtk {

// A web view of the engine that is laid out and never shown. It loads when its turn has come. Only
// the navigation delegate is told how the load ends: there is no panel and no second attempt.
class OffscreenWebView final : public EngineView {
public:
    OffscreenWebView(WebEngine& engine, platform::NSSize size,
        const platform::WKWebViewConfiguration& configuration);

    // Told by the window, for as long as it holds the view.
    void setWindow(platform::NSWindow* window) { window_ = window; }

    platform::NSWindow* window() const override { return window_; }
    platform::NSRect bounds() const override { return {{}, size_}; }

    void load(const platform::URLRequest& request) override;
    void loadHTMLString(
        const std::string& html, const std::optional<platform::URL>& baseURL) override;
    std::shared_ptr<platform::NSPrintOperation> printOperation(
        const platform::NSPrintInfo& printInfo) override;

    // No-ops: this view is never shown.
    void setAllowsBackForwardNavigationGestures(bool) override { }
    void setAllowsMagnification(bool) override { }
    void setUsesOverlayScrollers(bool) override { }
    void setDrawsBackground(bool) override { }
    void setPageZoom(double) override { }

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
    platform::NSWindow* window_ = nullptr;
    std::unique_ptr<LoadLimiter::Turn> turn_; // from the load to the end of the work
    Timer answerTimer_;
    bool hasCommitted_ = false; // a document of this load is there
    bool hasFailed_ = false; // this load, which the engine tells of once more as finished
    SignalHandlers signals_;
};

} // namespace gtk
