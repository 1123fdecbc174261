#include "platform/ui/Slot.h"

#include <algorithm>
#include <cassert>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace ui {

namespace {

struct IdentityHash {
    std::size_t operator()(const Identity& identity) const
    {
        const auto text = std::hash<std::string>()(identity.key);
        const auto type = identity.type.hash_code();
        return text ^ (type * 31) ^ (static_cast<std::size_t>(identity.kind) << 8) ^ identity.count;
    }
};

// The views that are really there, those of sequences in their place.
void flatten(const std::vector<View>& views, const std::vector<std::string>* keys,
    std::vector<std::pair<std::shared_ptr<Node>, std::string>>& result)
{
    for (std::size_t i = 0; i < views.size(); ++i) {
        const auto& node = views[i].node();
        if (!node)
            continue;
        if (node->kind == Kind::sequence)
            flatten(node->children, &static_cast<const SequenceNode&>(*node).keys, result);
        else
            result.emplace_back(node, keys ? (*keys)[i] : std::string());
    }
}

// The most widgets that stand in both rows in the same order, so that as few as possible have to be
// moved from the one to the other: a longest increasing sequence of places.
std::unordered_set<Widget*> longestCommonOrder(
    const std::vector<Widget*>& present, const std::vector<Widget*>& wanted)
{
    std::unordered_map<Widget*, std::size_t> places;
    for (std::size_t place = 0; place < present.size(); ++place)
        places.emplace(present[place], place);

    constexpr auto none = static_cast<std::size_t>(-1);
    std::vector<std::size_t> previous(wanted.size(), none);
    std::vector<std::size_t> ends; // at n, the sequence of n + 1 widgets that ends earliest
    const auto placeOf = [&](std::size_t index) { return places.at(wanted[index]); };
    for (std::size_t index = 0; index < wanted.size(); ++index) {
        if (!places.contains(wanted[index]))
            continue;
        const auto end = std::ranges::lower_bound(ends, placeOf(index), {}, placeOf);
        if (end != ends.begin())
            previous[index] = *std::prev(end);
        if (end == ends.end())
            ends.push_back(index);
        else
            *end = index;
    }

    std::unordered_set<Widget*> order;
    for (auto index = ends.empty() ? none : ends.back(); index != none; index = previous[index])
        order.insert(wanted[index]);
    return order;
}

} // namespace

Slot::Slot(Mount& mount, Slot* parent, Identity identity)
    : mount_(mount)
    , parent_(parent)
    , identity_(std::move(identity))
    , depth_(parent ? parent->depth_ + 1 : 0)
    , isShown_(parent ? parent->isShown_ && parent->showsChildren() : true)
{
}

Slot::~Slot()
{
    if (hasChanged_)
        mount_.forget(*this);
}

void Slot::update(const std::shared_ptr<Node>& node)
{
    switch (node->kind) {
    case Kind::component:
        updateComponent(node);
        break;
    case Kind::hosted:
        updateHost(node);
        break;
    default:
        updateWidget(node);
    }
}

void Slot::updateComponent(const std::shared_ptr<Node>& node)
{
    auto component = std::static_pointer_cast<ComponentNode>(node);
    if (component != node_ && component->isMounted)
        component = component->copy(); // one description in two places has a state in each
    component->isMounted = true;

    const auto previous = std::static_pointer_cast<ComponentNode>(std::exchange(node_, component));
    if (!previous) {
        component->mount();
    } else if (previous != component) {
        component->adopt(*previous);
        if (!hasChanged_ && component->isEqual(*previous))
            return;
    }
    evaluateBody();
}

void Slot::evaluateBody()
{
    if (std::exchange(hasChanged_, false))
        mount_.forget(*this);

    View body;
    track([&] { body = static_cast<const ComponentNode&>(*node_).body(); });
    updateChildren({body});
    assert(children_.size() <= 1); // a body is one view
}

void Slot::updateHost(const std::shared_ptr<Node>& node)
{
    auto hostedNode = std::static_pointer_cast<const HostedNode>(node);
    node_ = node;
    if (hosted_) {
        hosted_->update(std::move(hostedNode));
        return;
    }
    hosted_.emplace(std::move(hostedNode));
    widget_ = mount_.renderer_.makeHost(*hosted_);
    widget_->setShown(isShown_);
}

void Slot::updateWidget(const std::shared_ptr<Node>& node)
{
    node_ = node;
    if (!widget_)
        widget_ = mount_.renderer_.makeWidget(*node);
    widget_->apply(*node);

    // What is hidden is hidden before its children change, and what is shown is shown after:
    // nothing is shown in between that is hidden before and after.
    if (!showsChildren())
        showChildren(false);
    updateChildren(node->children);
    if (isShown_ && showsChildren())
        showChildren(true);
    arrange();
    if (node->kind == Kind::group)
        mount_.publish(*this, static_cast<const GroupNode&>(*node).focusedValues);
}

void Slot::updateChildren(const std::vector<View>& views)
{
    std::vector<std::pair<std::shared_ptr<Node>, std::string>> nodes;
    flatten(views, nullptr, nodes);

    std::vector<Child> wanted;
    wanted.reserve(nodes.size());
    std::unordered_map<Identity, std::size_t, IdentityHash> counts;
    for (auto& [node, key] : nodes) {
        Identity identity{node->kind, node->type(), std::move(key), 0};
        identity.count = counts[identity]++;
        wanted.push_back({std::move(identity), std::move(node)});
    }

    if (!hasChildren(wanted)) {
        auto previous = std::exchange(children_, matchChildren(wanted));
        for (auto& child : previous) {
            if (child)
                removeFromWidget(child);
        }
    }
    for (std::size_t i = 0; i < wanted.size(); ++i)
        children_[i]->update(wanted[i].node);
}

bool Slot::hasChildren(const std::vector<Child>& wanted) const
{
    return std::equal(children_.begin(), children_.end(), wanted.begin(), wanted.end(),
        [](const auto& slot, const auto& child) { return slot->identity_ == child.identity; });
}

// A slot for each wanted child, taken from `children_` where one has its identity. Those left there
// have gone.
std::vector<std::shared_ptr<Slot>> Slot::matchChildren(const std::vector<Child>& wanted)
{
    std::unordered_map<Identity, std::shared_ptr<Slot>*, IdentityHash> present;
    for (auto& child : children_)
        present.emplace(child->identity_, &child);

    std::vector<std::shared_ptr<Slot>> slots;
    slots.reserve(wanted.size());
    for (const auto& child : wanted) {
        const auto found = present.find(child.identity);
        if (found != present.end())
            slots.push_back(std::move(*found->second));
        else
            slots.push_back(std::make_shared<Slot>(mount_, this, child.identity));
    }
    return slots;
}

void Slot::arrange()
{
    std::vector<Widget*> wanted;
    wanted.reserve(children_.size());
    for (const auto& child : children_) {
        if (auto* widget = child->topWidget())
            wanted.push_back(widget);
    }
    if (wanted == placed_)
        return;

    const auto staying = longestCommonOrder(placed_, wanted);
    for (std::size_t index = 0; index < wanted.size(); ++index) {
        auto* widget = wanted[index];
        if (staying.contains(widget))
            continue;
        std::erase(placed_, widget);
        // Behind what stands before it in the end, among all that are placed by now.
        const auto before =
            index == 0 ? placed_.begin() : std::ranges::find(placed_, wanted[index - 1]) + 1;
        const auto place = before - placed_.begin();
        widget_->place(*widget, static_cast<std::size_t>(place));
        placed_.insert(before, widget);
    }
}

void Slot::removeFromWidget(const std::shared_ptr<Slot>& child)
{
    auto* widget = child->topWidget();
    child->retire();
    auto* owner = widgetOwner();
    if (!widget || !owner)
        return;
    std::erase(owner->placed_, widget);
    owner->widget_->remove(*widget, child);
}

Slot* Slot::widgetOwner()
{
    auto* slot = this;
    while (slot && !slot->widget_)
        slot = slot->parent_;
    return slot;
}

std::shared_ptr<Slot> Slot::widgetSlot()
{
    if (widget_)
        return shared_from_this();
    return children_.empty() ? nullptr : children_.front()->widgetSlot();
}

Widget* Slot::topWidget() const
{
    if (widget_)
        return widget_.get();
    return children_.empty() ? nullptr : children_.front()->topWidget();
}

bool Slot::showsChildren() const
{
    return !node_ || node_->kind != Kind::group
        || static_cast<const GroupNode&>(*node_).opacity > 0;
}

void Slot::setShown(bool isShown)
{
    if (isShown_ == isShown)
        return;
    isShown_ = isShown;
    if (hosted_)
        widget_->setShown(isShown);
    showChildren(isShown_ && showsChildren());
}

void Slot::showChildren(bool isShown)
{
    for (const auto& child : children_)
        child->setShown(isShown);
}

void Slot::subjectChanged()
{
    if (std::exchange(hasChanged_, true))
        return;
    mount_.schedule(*this);
}

void Slot::redrawIfChanged()
{
    if (!hasChanged_)
        return;
    const auto before = widgetSlot(); // kept, so that nothing new can take its address
    evaluateBody();
    auto* owner = widgetOwner();
    if (owner && widgetSlot() != before)
        owner->arrange();
}

void Slot::retire()
{
    stopObserving();
    if (std::exchange(hasChanged_, false))
        mount_.forget(*this);
    mount_.withdraw(*this);
    parent_ = nullptr;
    for (const auto& child : children_)
        child->retire();
}

} // namespace ui
