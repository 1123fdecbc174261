#pragma once

#include "platform/gtk/webkit/GtkDownload.h"
#include "platform/webkit/WKWebView.h"

#include <vector>

namespace gtk {

// The downloads of one web view that are running. They end in the failure path when this goes.
class RunningDownloads {
public:
    // `owner`, whose engine view is `view`, has the navigation delegate that is told of each. Both
    // must outlive this.
    RunningDownloads(WebKitWebView* view, platform::WKWebView& owner);
    ~RunningDownloads();

    RunningDownloads(const RunningDownloads&) = delete;
    RunningDownloads& operator=(const RunningDownloads&) = delete;

private:
    void begin(WebKitDownload* download);

    WebKitWebView* const view_;
    platform::WKWebView& owner_;
    std::vector<std::shared_ptr<GtkDownload>> running_;
    SignalHandlers signals_;
};

} // namespace gtk
