#pragma once

#include "platform/appkit/NSScreen.h"

namespace simulated {

// A monitor of which no part is covered unless the test leaves that out of the frame.
class SimulatedScreen final : public platform::NSScreen {
public:
    explicit SimulatedScreen(const platform::NSRect& visibleFrame)
        : visibleFrame_(visibleFrame)
    {
    }

    platform::NSRect visibleFrame() const override { return visibleFrame_; }

    // A panel has come or gone, or the resolution has changed.
    void simulateVisibleFrame(const platform::NSRect& frame) { visibleFrame_ = frame; }

private:
    platform::NSRect visibleFrame_;
};

} // namespace simulated
