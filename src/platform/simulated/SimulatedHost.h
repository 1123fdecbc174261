#pragma once

#include "platform/simulated/SimulatedWidget.h"
#include "platform/ui/HostedView.h"

namespace simulated {

// The place of a native view, a costly one of which is not made before the window's first frame.
class SimulatedHost final : public SimulatedWidget {
public:
    SimulatedHost(SimulatedRenderer& renderer, ui::HostedView& hosted);
    ~SimulatedHost() override;

    void setShown(bool isShown) override { isShown_ = isShown; }

    bool isShown() const { return isShown_; }

    // The native view; null before it is made.
    platform::NSView* view() const { return hosted_.isMade() ? hosted_.view().get() : nullptr; }

protected:
    std::string describeSelf() const override;

private:
    void make();

    ui::HostedView& hosted_;
    bool isShown_ = true;
};

} // namespace simulated
