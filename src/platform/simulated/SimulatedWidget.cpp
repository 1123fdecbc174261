#include "platform/simulated/SimulatedWidget.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/simulated/Failure.h"
#include "platform/simulated/NodeText.h"
#include "platform/simulated/SimulatedRenderer.h"

#include <algorithm>

namespace simulated {

SimulatedWidget::SimulatedWidget(SimulatedRenderer& renderer)
    : renderer_(renderer)
{
}

SimulatedWidget::~SimulatedWidget()
{
    for (auto& child : childList_)
        child.widget->parent_ = nullptr;
    if (parent_)
        std::erase_if(
            parent_->childList_, [this](const auto& child) { return child.widget == this; });
}

void SimulatedWidget::apply(const ui::Node& node)
{
    if (kind_ && *kind_ != node.kind)
        fail("a widget was asked to show a node of another kind");
    kind_ = node.kind;
    node_ = &node;
    ++renderer_.counts.applied;
}

void SimulatedWidget::place(ui::Widget& widget, std::size_t index)
{
    auto& child = static_cast<SimulatedWidget&>(widget);
    if (child.wasRemoved_)
        return fail("a widget came back after it was removed: " + child.describeSelf());
    if (child.parent_ && child.parent_ != this)
        return fail("a widget was put into a second parent: " + child.describeSelf());
    ++renderer_.counts.placed;

    if (child.parent_)
        childList_.erase(entryOf(child));
    child.parent_ = this;
    if (index > children().size())
        return fail("a widget was placed behind the end");
    childList_.insert(
        childList_.begin() + static_cast<std::ptrdiff_t>(listIndex(index)), Child{&child, nullptr});
}

void SimulatedWidget::remove(ui::Widget& widget, std::shared_ptr<void> owner)
{
    auto& child = static_cast<SimulatedWidget&>(widget);
    const auto entry = entryOf(child);
    if (entry == childList_.end() || child.wasRemoved_)
        return fail("a widget was removed that was not there: " + child.describeSelf());
    ++renderer_.counts.removed;
    child.wasRemoved_ = true;

    const auto* group = child.node<ui::GroupNode>();
    if (!group || group->transition.duration <= 0) {
        letGo(child);
        return;
    }
    entry->owner = std::move(owner);
    platform::DispatchQueue::main().asyncAfter(
        group->transition.duration, lifetime_.guard([this, &child] { letGo(child); }));
}

std::vector<SimulatedWidget*> SimulatedWidget::children() const
{
    std::vector<SimulatedWidget*> children;
    for (const auto& child : childList_) {
        if (!child.owner)
            children.push_back(child.widget);
    }
    return children;
}

bool SimulatedWidget::showsText(std::string_view text) const
{
    return std::ranges::any_of(findAll<ui::TextNode>(), [&](const auto* widget) {
        return widget->template node<ui::TextNode>()->text == text && widget->isVisible();
    });
}

bool SimulatedWidget::isVisible() const
{
    const auto* group = node<ui::GroupNode>();
    if ((group && group->opacity <= 0) || isLeaving())
        return false;
    return !parent_ || parent_->isVisible();
}

platform::NSWindow* SimulatedWidget::window() const
{
    return parent_ ? parent_->window() : window_;
}

std::string SimulatedWidget::describe() const
{
    std::string text;
    describe(text, 0);
    return text;
}

std::string SimulatedWidget::describeSelf() const
{
    return node_ ? nodeText(*node_) : "window";
}

void SimulatedWidget::describe(std::string& text, std::size_t depth) const
{
    text += std::string(2 * depth, ' ') + describeSelf() + (isLeaving() ? " leaving\n" : "\n");
    for (const auto& child : childList_)
        child.widget->describe(text, depth + 1);
}

// Where the child at `index` stands among all children, those on their way out included.
std::size_t SimulatedWidget::listIndex(std::size_t index) const
{
    std::size_t position = 0;
    while (position < childList_.size()) {
        if (!childList_[position].owner && index-- == 0)
            break;
        ++position;
    }
    return position;
}

std::vector<SimulatedWidget::Child>::iterator SimulatedWidget::entryOf(const SimulatedWidget& child)
{
    return std::ranges::find(childList_, &child, &Child::widget);
}

void SimulatedWidget::letGo(const SimulatedWidget& child)
{
    const auto entry = entryOf(child);
    if (entry == childList_.end())
        return;
    entry->widget->parent_ = nullptr;
    const auto owner = std::move(entry->owner); // the child may go with it, after the next line
    childList_.erase(entry);
}

bool SimulatedWidget::isLeaving() const
{
    if (!parent_)
        return false;
    const auto entry = parent_->entryOf(*this);
    return entry != parent_->childList_.end() && entry->owner;
}

} // namespace simulated
