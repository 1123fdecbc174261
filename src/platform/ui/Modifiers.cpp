#include "platform/ui/Node.h"

namespace ui {

namespace {

// Modifiers written one after the other share one group.
std::shared_ptr<GroupNode> groupAround(const View& view)
{
    if (const auto* group = dynamic_cast<const GroupNode*>(view.node().get()))
        return std::make_shared<GroupNode>(*group);
    return std::make_shared<GroupNode>(view);
}

} // namespace

View View::frame(FrameOptions options) const
{
    return View(std::make_shared<FrameNode>(*this, options));
}

View View::padding(PaddingOptions options) const
{
    return View(std::make_shared<PaddingNode>(*this, options));
}

View View::background(View behind) const
{
    return View(std::make_shared<LayersNode>(
        std::vector<View>{std::move(behind), *this}, Alignment::center, 1));
}

View View::overlay(View inFront, Alignment alignment) const
{
    return View(
        std::make_shared<LayersNode>(std::vector<View>{*this, std::move(inFront)}, alignment, 0));
}

View View::opacity(double opacity) const
{
    auto group = groupAround(*this);
    group->opacity = opacity;
    return View(std::move(group));
}

View View::allowsHitTesting(bool isAllowed) const
{
    auto group = groupAround(*this);
    group->allowsHitTesting = isAllowed;
    return View(std::move(group));
}

View View::transition(Transition transition) const
{
    auto group = groupAround(*this);
    group->transition = transition;
    return View(std::move(group));
}

View View::onOpenURL(std::function<void(const platform::URL&)> action) const
{
    auto group = groupAround(*this);
    group->onOpenURL = std::move(action);
    return View(std::move(group));
}

} // namespace ui
