#include "platform/gtk/webkit/RunningDownloads.h"

#include "platform/gtk/webkit/EngineView.h"
#include "platform/webkit/WKNavigationDelegate.h"

namespace gtk {

RunningDownloads::RunningDownloads(EngineView& owner)
    : owner_(owner)
{
    signals_.connect(webkit_web_view_get_network_session(owner.native()), "download-started",
        G_CALLBACK(+[](WebKitNetworkSession*, WebKitDownload* download, RunningDownloads* self) {
            if (webkit_download_get_web_view(download) == self->owner_.native())
                self->begin(download);
        }),
        this);
}

RunningDownloads::~RunningDownloads()
{
    const auto running = running_; // each leaves the list
    for (const auto& download : running)
        download->stop("The tab was closed");
}

void RunningDownloads::begin(WebKitDownload* download)
{
    const auto begun = std::make_shared<GtkDownload>(download, [this](GtkDownload& ended) {
        std::erase_if(running_, [&](const auto& download) { return download.get() == &ended; });
    });
    running_.push_back(begun);

    // The engine does not tell whether it was the question or the answer that became a download.
    if (const auto delegate = owner_.navigationDelegate.lock())
        delegate->navigationResponseDidBecomeDownload(owner_, begun);
}

} // namespace gtk
