#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/mapkit/MKLocalSearch.h"

namespace gtk {

// Finds the place of a suggestion. The suggestion knows it already, so a pick needs no network and
// yields the very place that was shown. A suggestion that no completer of ours has made yields
// nothing.
class GtkLocalSearch final : public platform::MKLocalSearch {
public:
    // `queue` must outlive this.
    GtkLocalSearch(Request request, platform::DispatchQueue& queue);

    void start(CompletionHandler completionHandler) override;

private:
    const Request request_;
    platform::DispatchQueue& queue_;
};

} // namespace gtk
