#pragma once

#include "platform/foundation/NSError.h"
#include "platform/mapkit/MKLocalSearchRequest.h"
#include "platform/mapkit/MKMapItem.h"

#include <functional>
#include <optional>
#include <vector>

namespace platform {

// Finds places once. The platform makes it for its caller; a search that was started runs to its
// end, also when the caller has let go of it.
class MKLocalSearch {
public:
    using Request = MKLocalSearchRequest;

    struct Response {
        std::vector<MKMapItem> mapItems; // best first
    };

    // Both are absent when nothing was found and nothing went wrong.
    using CompletionHandler = std::function<void(
        const std::optional<Response>& response, const std::optional<NSError>& error)>;

    virtual ~MKLocalSearch() = default;

    // To be called once, on the main thread. `completionHandler` is called once, later, on any
    // thread.
    virtual void start(CompletionHandler completionHandler) = 0;
};

} // namespace platform
