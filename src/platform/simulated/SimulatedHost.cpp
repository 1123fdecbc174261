#include "platform/simulated/SimulatedHost.h"

#include "platform/simulated/Failure.h"
#include "platform/simulated/SimulatedPlace.h"
#include "platform/simulated/SimulatedRenderer.h"

namespace simulated {

SimulatedHost::SimulatedHost(SimulatedRenderer& renderer, ui::HostedView& hosted)
    : SimulatedWidget(renderer)
    , hosted_(hosted)
{
    if (!hosted_.waitsForFirstFrame()) {
        make();
        return;
    }
    renderer.whenFirstFrameIsShown(lifetime().guard([this] { make(); }));
}

SimulatedHost::~SimulatedHost()
{
    if (auto* place = dynamic_cast<SimulatedPlace*>(view()))
        place->setHost(nullptr);
}

void SimulatedHost::make()
{
    auto* place = dynamic_cast<SimulatedPlace*>(hosted_.view().get());
    if (!place)
        return fail("a hosted view is none of this platform's");
    place->setHost(this);
}

std::string SimulatedHost::describeSelf() const
{
    return std::string("hosted") + (hosted_.isMade() ? "" : " unmade")
        + (isShown_ ? "" : " hidden");
}

} // namespace simulated
