#pragma once

#include "platform/foundation/NSError.h"
#include "platform/foundation/URL.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace platform {

class WKDownloadDelegate;

// A file on its way to the disk. It lives until it has ended, whatever becomes of the page it was
// started from. Main thread only.
class WKDownload {
public:
    virtual ~WKDownload() = default;

    // Asked for a destination when the answer has begun; without one the download is cancelled.
    std::weak_ptr<WKDownloadDelegate> delegate;

    // Ends in the failure path. Nothing when it has ended already.
    virtual void cancel() = 0;
};

// Decides where a download goes, and learns how it ended: by exactly one of the last two calls, on
// the main thread.
class WKDownloadDelegate {
public:
    virtual ~WKDownloadDelegate() = default;

    // `suggestedFilename` is one name without slashes that the file system can hold, and never
    // empty. `decide` is to be called once; absent cancels. What is at the destination by the end
    // is never replaced, and no half of a file ever stands under its name.
    virtual void decideDestination(const std::shared_ptr<WKDownload>&,
        const std::string& suggestedFilename,
        const std::function<void(const std::optional<URL>&)>& decide) = 0;

    virtual void downloadDidFinish(const std::shared_ptr<WKDownload>&) = 0;
    virtual void downloadDidFail(const std::shared_ptr<WKDownload>&, const NSError& error) = 0;
};

} // namespace platform
