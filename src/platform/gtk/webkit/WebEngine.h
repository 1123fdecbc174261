#pragma once

#include "platform/gtk/foundation/StandardPaths.h"
#include "platform/gtk/network/HostTrust.h"
#include "platform/gtk/webkit/LoadLimiter.h"
#include "platform/gtk/webkit/ProcessSharing.h"
#include "platform/gtk/webkit/RetrySchedule.h"
#include "platform/gtk/webkit/VisiblePage.h"
#include "platform/webkit/WKWebViewConfiguration.h"

#include <memory>

namespace gtk {

struct PrintChoice;

// What the web views of a program share: where they keep data, which servers they trust, and which
// of them is in front. Its processes end when it and the last view have gone.
class WebEngine {
public:
    // Cookies and storage go to the folder "web" of the program's data, and of its caches. Where
    // web views cannot be drawn by a graphics processor, `isAccelerated` is false. Nothing is
    // started yet.
    WebEngine(StandardPaths paths, std::shared_ptr<const HostTrust> trust, bool isAccelerated);
    ~WebEngine();

    WebEngine(const WebEngine&) = delete;
    WebEngine& operator=(const WebEngine&) = delete;

    // Starts the engine's network process, and lets it look up `host`, while the program has other
    // things to do. May be called before GTK is initialised. Otherwise this happens with the first
    // web view.
    void prepare(const std::string& host = {});

    // Starts a content process for the first web view, which takes most of the time until that view
    // can load. After GTK is initialised.
    void startContentProcess();

    // An empty view whose content process is running, for the next view to join; null when it has
    // been taken or was never made. The view that takes it drops it once it loads a page itself.
    WebKitWebView* spareView() const { return spareView_.get(); }
    ObjectPointer<WebKitWebView> takeSpareView() { return std::move(spareView_); }

    // Whether the web view in front shows a page that has been loaded to its end; the signal tells
    // each change.
    bool isVisiblePageReady() const { return visiblePage_->isReady(); }
    sigc::signal<void()>& signalVisiblePageChanged() { return visiblePage_->signalChanged(); }

    ObjectPointer<WebKitNetworkSession> session(platform::WKWebsiteDataStore store);
    ObjectPointer<WebKitSettings> makeSettings(const platform::WKPreferences& preferences) const;
    const std::shared_ptr<LoadLimiter>& offscreenLoads() const { return offscreenLoads_; }
    const std::shared_ptr<PrintChoice>& printChoice() const { return printChoice_; }
    const std::shared_ptr<VisiblePage>& visiblePage() const { return visiblePage_; }
    const std::shared_ptr<const HostTrust>& trust() const { return trust_; }

    // Of the views on the persistent store.
    const std::shared_ptr<ProcessSharing>& sharing() const { return sharing_; }

    // For views made from now on.
    const PageTimeouts& patience() const { return patience_; }
    void setPatience(const PageTimeouts& patience) { patience_ = patience; }

private:
    const StandardPaths paths_;
    const std::shared_ptr<const HostTrust> trust_;
    const bool isAccelerated_;
    PageTimeouts patience_;
    std::shared_ptr<ProcessSharing> sharing_ = std::make_shared<ProcessSharing>();
    std::shared_ptr<VisiblePage> visiblePage_ = std::make_shared<VisiblePage>();
    const std::shared_ptr<LoadLimiter> offscreenLoads_;
    const std::shared_ptr<PrintChoice> printChoice_;
    ObjectPointer<WebKitNetworkSession> session_; // made when first needed
    ObjectPointer<WebKitWebView> spareView_;
};

} // namespace gtk
