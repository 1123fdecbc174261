#include "platform/ui/Mount.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/ui/Slot.h"

#include <algorithm>
#include <utility>

namespace ui {

namespace {

// Stands in the top slot for the container, which the window owns.
class ContainerWidget final : public Widget {
public:
    explicit ContainerWidget(Widget& container)
        : container_(container)
    {
    }

    void apply(const Node&) override { }
    void place(Widget& child, std::size_t index) override { container_.place(child, index); }
    void remove(Widget& child, std::shared_ptr<void> owner) override
    {
        container_.remove(child, std::move(owner));
    }

private:
    Widget& container_;
};

} // namespace

Mount::Mount(View content, Renderer& renderer, Widget& container)
    : renderer_(renderer)
{
    auto top = std::make_shared<GroupNode>(std::move(content));
    root_ = std::make_shared<Slot>(*this, nullptr, Identity{top->kind, top->type(), {}, 0});
    root_->widget_ = std::make_unique<ContainerWidget>(container);
    root_->update(top);
}

Mount::~Mount()
{
    root_->retire();
}

void Mount::openURL(const platform::URL& url)
{
    std::vector<std::shared_ptr<Slot>> places{root_};
    while (!places.empty()) {
        const auto place = std::move(places.back());
        places.pop_back();
        if (place->node_->kind == Kind::group) {
            if (const auto action = static_cast<const GroupNode&>(*place->node_).onOpenURL)
                action(url);
        }
        const auto children = place->children_; // kept, since a later action may take them away
        places.insert(places.end(), children.rbegin(), children.rend());
    }
}

void Mount::flush()
{
    auto changed = std::exchange(changed_, {});
    std::vector<std::weak_ptr<Slot>> slots; // a redraw may take away slots below it
    std::ranges::sort(changed, {}, &Slot::depth);
    for (auto* slot : changed)
        slots.push_back(slot->weak_from_this());

    for (const auto& weakSlot : slots) {
        if (const auto slot = weakSlot.lock())
            slot->redrawIfChanged();
    }
}

void Mount::schedule(Slot& slot)
{
    changed_.push_back(&slot);
    if (changed_.size() > 1)
        return; // a redraw is already on its way
    platform::DispatchQueue::main().async(lifetime_.guard([this] { flush(); }));
}

void Mount::forget(Slot& slot)
{
    std::erase(changed_, &slot);
}

void Mount::publish(const Slot& slot, const FocusedValues& values)
{
    if (values.isEmpty())
        return withdraw(slot);
    publisher_ = &slot;
    if ((*focusedValues_)() != values)
        *focusedValues_ = values;
}

void Mount::withdraw(const Slot& slot)
{
    if (publisher_ != &slot)
        return;
    publisher_ = nullptr;
    *focusedValues_ = FocusedValues();
}

} // namespace ui
