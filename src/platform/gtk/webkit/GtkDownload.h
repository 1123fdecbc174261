#pragma once

#include "platform/gtk/foundation/SignalHandlers.h"
#include "platform/gtk/webkit/UnfinishedFolder.h"
#include "platform/webkit/WKDownload.h"

#include <filesystem>
#include <webkit/webkit.h>

namespace gtk {

// A download of the engine. The engine writes into a folder of its own, hidden in the one that the
// file is meant for; the file leaves it when it is whole.
class GtkDownload final : public platform::WKDownload,
                          public std::enable_shared_from_this<GtkDownload> {
public:
    // `onEnd` is called once, after the delegate.
    GtkDownload(WebKitDownload* download, std::function<void(GtkDownload&)> onEnd);
    ~GtkDownload() override;

    GtkDownload(const GtkDownload&) = delete;
    GtkDownload& operator=(const GtkDownload&) = delete;

    void cancel() override { stop("The download was cancelled"); }

    // Ends it in the failure path, unless it has ended.
    void stop(const std::string& reason);

private:
    void watch();
    void progressed();
    void askForDestination(const std::function<void(const std::optional<platform::URL>&)>& decide);
    void receiveInto(const std::optional<platform::URL>& destination);
    void moveToDestination();
    void finish();
    void fail(const std::string& reason); // without cancelling it in the engine

    const ObjectPointer<WebKitDownload> download_;
    std::function<void(GtkDownload&)> onEnd_; // empty once it has ended
    std::string suggestedName_;
    std::unique_ptr<UnfinishedFolder> folder_; // null while nothing has been received
    std::filesystem::path destination_;
    SignalHandlers signals_;
};

} // namespace gtk
