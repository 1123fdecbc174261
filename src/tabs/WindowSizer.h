#pragma once

#include "platform/appkit/NSView.h"
#include "platform/appkit/NSWindow.h"
#include "platform/foundation/NotificationCenter.h"

#include <memory>

namespace velmaro {

// An empty view that reaches the window around it: sizes it once to 85 % of the screen, centred,
// and keeps it at least that large.
struct WindowSizer {
    struct Coordinator : std::enable_shared_from_this<Coordinator> {
        bool applied = false; // never reset
        platform::NotificationCenter::Observer resizeObserver;
    };
    using NSViewType = platform::NSView;

    std::shared_ptr<Coordinator> makeCoordinator() const;
    std::shared_ptr<platform::NSView> makeNSView(Coordinator& coordinator) const;
    void updateNSView(platform::NSView& view, Coordinator& coordinator) const;
};

} // namespace velmaro
