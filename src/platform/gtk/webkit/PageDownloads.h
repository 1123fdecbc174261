#pragma once

#include "platform/gtk/webkit/GtkDownload.h"
#include "platform/webkit/WKWebView.h"

#include <vector>

namespace gtk {

// The downloads that the pages of one web view have started. Those still running when this goes end
// in the failure path.
class PageDownloads {
public:
    // `owner` has the navigation delegate that is told of each.
    PageDownloads(WebKitWebView* view, platform::WKWebView& owner);
    ~PageDownloads();

    PageDownloads(const PageDownloads&) = delete;
    PageDownloads& operator=(const PageDownloads&) = delete;

    // Refuses every download of the session that no web view asks a delegate about: left alone, the
    // engine would save it under a name of its own, and might do away with a file of the user's.
    static void refuseOthers(WebKitNetworkSession* session);

private:
    void begin(WebKitDownload* download);

    WebKitWebView* const view_;
    platform::WKWebView& owner_;
    std::vector<std::shared_ptr<GtkDownload>> running_;
    SignalHandlers signals_;
};

} // namespace gtk
