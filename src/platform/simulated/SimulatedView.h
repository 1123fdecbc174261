#pragma once

#include "platform/appkit/NSView.h"
#include "platform/simulated/SimulatedPlace.h"

namespace simulated {

// A plain view with nothing in it.
class SimulatedView final : public platform::NSView, public SimulatedPlace {
public:
    platform::NSWindow* window() const override { return windowOfHost(); }
};

} // namespace simulated
