#pragma once

#include "platform/appkit/NSView.h"
#include "platform/appkit/NSWindow.h"
#include "platform/simulated/SimulatedPlace.h"

namespace simulated {

// A plain view with nothing in it.
class SimulatedView final : public platform::NSView, public SimulatedPlace {
public:
    platform::NSWindow* window() const override { return windowOfHost(); }

    // A view that fills its window; only the window's own size is simulated.
    platform::NSRect bounds() const override
    {
        return window() ? platform::NSRect{{}, window()->frame().size} : platform::NSRect();
    }
};

} // namespace simulated
