#include "platform/simulated/SimulatedRenderer.h"

#include "platform/simulated/Failure.h"
#include "platform/simulated/SimulatedHost.h"
#include "platform/simulated/SimulatedWidget.h"
#include "platform/ui/ViewNodes.h"

#include <utility>

namespace simulated {

std::unique_ptr<ui::Widget> SimulatedRenderer::makeWidget(const ui::Node& node)
{
    if (node.kind == ui::Kind::component || node.kind == ui::Kind::sequence
        || node.kind == ui::Kind::hosted)
        fail("a widget was asked for where no widget stands for the node");
    ++counts.made;
    return std::make_unique<SimulatedWidget>(*this);
}

std::unique_ptr<ui::Widget> SimulatedRenderer::makeHost(ui::HostedView& hosted)
{
    ++counts.made;
    return std::make_unique<SimulatedHost>(*this, hosted);
}

void SimulatedRenderer::whenFirstFrameIsShown(std::function<void()> action)
{
    if (isFirstFrameShown_)
        action();
    else
        waiting_.push_back(std::move(action));
}

void SimulatedRenderer::showFirstFrame()
{
    isFirstFrameShown_ = true;
    for (const auto& action : std::exchange(waiting_, {}))
        action();
}

} // namespace simulated
