#include "platform/ui/ViewNodes.h"

namespace ui {

namespace {

// Modifiers written one after the other share one group.
template <class Change> View with(const View& view, Change change)
{
    const auto* present = dynamic_cast<const GroupNode*>(view.node().get());
    auto group =
        present ? std::make_shared<GroupNode>(*present) : std::make_shared<GroupNode>(view);
    change(*group);
    return View(std::move(group));
}

} // namespace

View View::id(std::string key) const
{
    auto sequence = std::make_shared<SequenceNode>();
    sequence->keys.push_back(std::move(key));
    sequence->children.push_back(*this);
    return View(std::move(sequence));
}

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
    return with(*this, [&](auto& group) { group.opacity = opacity; });
}

View View::allowsHitTesting(bool isAllowed) const
{
    return with(*this, [&](auto& group) { group.allowsHitTesting = isAllowed; });
}

View View::transition(Transition transition) const
{
    return with(*this, [&](auto& group) { group.transition = transition; });
}

View View::help(std::string text) const
{
    return with(*this, [&](auto& group) { group.help = std::move(text); });
}

View View::accessibility(Accessibility accessibility) const
{
    return with(*this, [&](auto& group) { group.accessibility = std::move(accessibility); });
}

View View::onHover(std::function<void(bool)> action) const
{
    return with(*this, [&](auto& group) { group.onHover = std::move(action); });
}

View View::onTapGesture(std::function<void()> action) const
{
    return with(*this, [&](auto& group) { group.onTapGesture = std::move(action); });
}

View View::onMiddleClick(std::function<void()> action) const
{
    return with(*this, [&](auto& group) { group.onMiddleClick = std::move(action); });
}

View View::draggable(std::string payload) const
{
    return with(*this, [&](auto& group) { group.dragPayload = std::move(payload); });
}

View View::dropDestination(std::function<bool(const std::vector<std::string>&)> action) const
{
    return with(*this, [&](auto& group) { group.onDrop = std::move(action); });
}

View View::scrolledToVisible(bool isVisible) const
{
    return with(*this, [&](auto& group) { group.isScrolledToVisible = isVisible; });
}

View View::withFocusedValues(const std::function<void(FocusedValues&)>& change) const
{
    return with(*this, [&](auto& group) { change(group.focusedValues); });
}

View View::onOpenURL(std::function<void(const platform::URL&)> action) const
{
    return with(*this, [&](auto& group) { group.onOpenURL = std::move(action); });
}

View View::sheet(View content, std::function<void()> onDismiss) const
{
    if (!content.node())
        return overlay(View());
    return overlay(View(std::make_shared<SheetNode>(std::move(content), std::move(onDismiss))));
}

View View::popover(View content, std::function<void()> onDismiss) const
{
    if (!content.node())
        return overlay(View());
    return overlay(View(std::make_shared<PopoverNode>(std::move(content), std::move(onDismiss))));
}

View View::toolbar(View leading, View trailing) const
{
    // Each stands in a group of its own, so that both are there even when there is nothing in one.
    return overlay(View(std::make_shared<ToolbarNode>(leading.opacity(1), trailing.opacity(1))));
}

} // namespace ui
