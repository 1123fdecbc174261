#pragma once

#include "platform/simulated/SimulatedWidget.h"

namespace simulated {

// What all native views of this platform have in common: the widget that they stand in, which tells
// their window.
class SimulatedPlace {
public:
    virtual ~SimulatedPlace() = default;

    // Null once the view stands nowhere.
    void setHost(const SimulatedWidget* host) { host_ = host; }

protected:
    platform::NSWindow* windowOfHost() const { return host_ ? host_->window() : nullptr; }

private:
    const SimulatedWidget* host_ = nullptr;
};

} // namespace simulated
