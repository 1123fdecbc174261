#pragma once

#include "platform/gtk/printing/PageOutput.h"
#include "platform/gtk/ui/NativeWidget.h"
#include "platform/gtk/webkit/FileDrop.h"
#include "platform/gtk/webkit/GtkUserContentController.h"
#include "platform/gtk/webkit/PageBackground.h"
#include "platform/gtk/webkit/PageDownloads.h"
#include "platform/gtk/webkit/PageRecovery.h"
#include "platform/gtk/webkit/PageRequests.h"
#include "platform/gtk/webkit/PageSearch.h"
#include "platform/gtk/webkit/PropertyObservers.h"
#include "platform/webkit/WKWebView.h"
#include "platform/webkit/WKWebViewConfiguration.h"

namespace gtk {

class VisiblePage;
class ProcessSharing;
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
    void loadHTMLString(
        const std::string& html, const std::optional<platform::URL>& baseURL) override;
    void evaluateJavaScript(const std::string& script) override;
    void find(const std::string& text, const platform::WKFindConfiguration& configuration,
        std::function<void(const platform::WKFindResult&)> completion) override
    {
        search_.find(text, configuration, std::move(completion));
    }
    void createPDF(const platform::WKPDFConfiguration& configuration,
        std::function<void(const PageDocument::Result&)> completion) override;
    std::shared_ptr<platform::NSPrintOperation> printOperation(
        const platform::NSPrintInfo& printInfo) override
    {
        return output_.print(printInfo);
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
    ObjectPointer<WebKitWebView> makeSharedView(
        WebEngine& engine, const platform::WKWebViewConfiguration& configuration);
    void watch();
    void takeFocus();
    void changed(Property property) { observers_.notify(property); }
    void titleChanged();
    void historyChanged();

    const std::shared_ptr<VisiblePage> visiblePage_;
    GtkUserContentController content_;
    const std::shared_ptr<ProcessSharing> sharing_;
    ObjectPointer<WebKitWebView> spare_; // until the first load begins
    const ObjectPointer<WebKitWebView> view_;
    Gtk::Overlay area_;
    PageRecovery keeper_;
    PageBackground background_;
    PageSearch search_;
    PageOutput output_;
    PageRequests requests_;
    PageDownloads downloads_;
    FileDrop drop_;
    PropertyObservers observers_;
    SignalHandlers signals_;
};

} // namespace gtk
