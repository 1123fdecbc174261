#pragma once

#include "platform/foundation/URL.h"

#include <vector>

namespace platform {

// What is being dragged.
struct NSDraggingInfo {
    std::vector<URL> fileURLs; // in the order of the source; empty when there are no files
};

// Takes drags over a view before the view itself does. The view that it is set on shares its
// ownership and calls it on the main thread.
class NSDraggingDestination {
public:
    virtual ~NSDraggingDestination() = default;

    // Whether a drop of it would be taken, as a copy. Otherwise the drag is the view's own matter.
    // Asked when a drag comes over the view, and before it is dropped.
    virtual bool takesDrag(const NSDraggingInfo& dragging) const = 0;

    // It was dropped. False refuses it after all.
    virtual bool performDragOperation(const NSDraggingInfo& dragging) = 0;
};

} // namespace platform
