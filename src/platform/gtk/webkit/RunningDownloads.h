#pragma once

#include "platform/gtk/webkit/GtkDownload.h"

#include <vector>

namespace gtk {

class EngineView;

// The downloads of one web view that are running. They end in the failure path when this goes.
class RunningDownloads {
public:
    // The navigation delegate of `owner`, which must outlive this, is told of each.
    explicit RunningDownloads(EngineView& owner);
    ~RunningDownloads();

    RunningDownloads(const RunningDownloads&) = delete;
    RunningDownloads& operator=(const RunningDownloads&) = delete;

private:
    void begin(WebKitDownload* download);

    EngineView& owner_;
    std::vector<std::shared_ptr<GtkDownload>> running_;
    SignalHandlers signals_;
};

} // namespace gtk
