#pragma once

#include "platform/foundation/NSError.h"
#include "platform/foundation/URL.h"
#include "platform/ui/Published.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace platform {

class WKDownloadDelegate;

// A file on its way to the disk. The web view that it was started in keeps it until it has ended;
// when the view goes first, it ends in the failure path. Main thread only.
class WKDownload {
public:
    virtual ~WKDownload() = default;

    // Asked for a destination when the answer has begun; without one the download is cancelled.
    std::weak_ptr<WKDownloadDelegate> delegate;

    // How much has arrived, from 0 to 1; absent while it is not known how much there will be.
    ui::Published<std::optional<double>> fractionCompleted;

    // Ends in the failure path. Nothing when it has ended already.
    virtual void cancel() = 0;
};

// Decides where a download goes, and learns how it ended: by exactly one of the last two calls, on
// the main thread. The download holds it weakly.
class WKDownloadDelegate {
public:
    virtual ~WKDownloadDelegate() = default;

    // `suggestedFilename` is one name without slashes that the file system can hold, and never
    // empty. `decide` is to be called once; absent cancels. No half of a file ever stands at the
    // destination, and what is there already is never replaced: when something has come there in
    // the meantime, the question is asked again at the end.
    virtual void decideDestination(const std::shared_ptr<WKDownload>&,
        const std::string& suggestedFilename,
        const std::function<void(const std::optional<URL>&)>& decide) = 0;

    virtual void downloadDidFinish(const std::shared_ptr<WKDownload>&) = 0;
    virtual void downloadDidFail(const std::shared_ptr<WKDownload>&, const NSError& error) = 0;
};

} // namespace platform
