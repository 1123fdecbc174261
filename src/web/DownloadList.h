#pragma once

#include "platform/foundation/URL.h"
#include "platform/foundation/UUID.h"
#include "platform/ui/Published.h"
#include "platform/webkit/WKDownload.h"

#include <memory>
#include <string>
#include <vector>

namespace velmaro {

// One file that a page has had saved.
struct DownloadItem {
    enum class State { running, finished, failed };

    std::shared_ptr<platform::WKDownload> download;
    platform::URL file; // where it is, or is meant to be
    State state = State::running;
    std::string failureReason = {}; // empty unless it has failed
    platform::UUID id = {};
};

// The downloads of all tabs in this run of the program, until the user clears them away. Main
// thread only.
class DownloadList {
public:
    static DownloadList& shared();

    // Oldest first.
    ui::Published<std::vector<DownloadItem>> items;

    // A download has been given its destination, for the first time or anew.
    void begin(const std::shared_ptr<platform::WKDownload>& download, const platform::URL& file);

    // A download that never began is ignored.
    void finish(const platform::WKDownload& download);
    void fail(const platform::WKDownload& download, const std::string& reason);

    // Leaves only those still running.
    void clear();

    bool isRunning() const;

    // Of all running downloads together, from 0 to 1. Those of unknown size count as not begun.
    double fractionCompleted() const;

private:
    void end(const platform::WKDownload& download, DownloadItem::State state,
        const std::string& failureReason);
};

} // namespace velmaro
