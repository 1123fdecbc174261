#pragma once

#include "platform/gtk/ui/NativeWidget.h"
#include "platform/gtk/webkit/EngineView.h"
#include "platform/gtk/webkit/FileDrop.h"
#include "platform/gtk/webkit/PageRecovery.h"
#include "platform/gtk/webkit/PageRequests.h"
#include "platform/gtk/webkit/RunningDownloads.h"

namespace gtk {

class VisiblePage;
class ProcessSharing;

// The web view of a tab, in an area that it shares with the panel for failed loads.
class GtkWebView final : public EngineView, public NativeView {
public:
    GtkWebView(WebEngine& engine, const platform::WKWebViewConfiguration& configuration);
    ~GtkWebView() override;

    platform::NSWindow* window() const override;
    Gtk::Widget& nativeWidget() override { return area_; }
    void setShown(bool isShown) override;

    void load(const platform::URLRequest& request) override { recovery_.load(request); }
    void evaluateJavaScript(const std::string& script) override;
    void goBack() override;
    bool canGoBack() const override;
    std::string title() const override;

    void setPageZoom(double factor) override;
    void setAllowsBackForwardNavigationGestures(bool isAllowed) override;
    void setAllowsMagnification(bool isAllowed) override;
    void setUsesOverlayScrollers(bool isOverlay) override;
    void setDrawsBackground(bool isDrawn) override;

private:
    bool acceptsMessages() const override { return !recovery_.failure(); }
    void watch();
    void takeFocus();
    void tellTitle();
    void paintBackground();

    const std::shared_ptr<VisiblePage> visiblePage_;
    const std::shared_ptr<ProcessSharing> sharing_; // null where no process is shared
    ObjectPointer<WebKitWebView> spare_; // until the first load begins
    Gtk::Overlay area_;
    PageRecovery recovery_;
    PageRequests requests_;
    RunningDownloads downloads_;
    FileDrop drop_;
    bool drawsBackground_ = true;
    SignalHandlers signals_;
};

} // namespace gtk
