#pragma once

#include "platform/ui/HostedView.h"
#include "platform/ui/Mount.h"
#include "platform/ui/Observation.h"

#include <optional>
#include <string>

namespace ui {

// What a place in the tree is known by among its siblings. What comes next in the same place is an
// update when it has the same identity, and something new otherwise.
struct Identity {
    Kind kind;
    std::type_index type;
    std::string key; // empty where the view has none
    std::size_t count; // how many siblings before it are the same in all of the above

    bool operator==(const Identity&) const = default;
};

// One mounted place in the tree. A component owns one slot, which has no widget and at most one
// child; every other slot owns a widget, whose children are the widgets found first below it. Its
// parent owns it, and the mount owns the top one. Main thread only.
class Slot final : public Observer, public std::enable_shared_from_this<Slot> {
public:
    Slot(Mount& mount, Slot* parent, Identity identity);
    ~Slot() override;

    const Identity& identity() const { return identity_; }
    std::size_t depth() const { return depth_; }

    // Shows `node`, whose identity is this slot's.
    void update(const std::shared_ptr<Node>& node);

    // Evaluates the component's body again, if a field that it has read was written.
    void redrawIfChanged();

    // Cuts the slot and all below it off from the models: it is shown on its way out and never
    // updated again.
    void retire();

private:
    friend class Mount;

    struct Child {
        Identity identity;
        std::shared_ptr<Node> node;
    };

    void subjectChanged() override;

    void updateComponent(const std::shared_ptr<Node>& node);
    void updateHost(const std::shared_ptr<Node>& node);
    void updateWidget(const std::shared_ptr<Node>& node);
    void evaluateBody();

    void updateChildren(const std::vector<View>& views);
    bool hasChildren(const std::vector<Child>& wanted) const;
    std::vector<std::shared_ptr<Slot>> matchChildren(const std::vector<Child>& wanted);

    // The widgets of the children, in their order, are put into this slot's widget.
    void arrange();
    void removeFromWidget(const std::shared_ptr<Slot>& child);

    // The nearest slot with a widget: this one or one above; null at the top.
    Slot* widgetOwner();

    // The widget that stands for this slot in its parent, and the slot that has it; null when the
    // component shows nothing.
    Widget* topWidget() const;
    std::shared_ptr<Slot> widgetSlot();

    void setShown(bool isShown);
    void showChildren(bool isShown);
    bool showsChildren() const;

    Mount& mount_;
    Slot* parent_;
    Identity identity_;
    std::size_t depth_;
    std::shared_ptr<Node> node_;
    std::optional<HostedView> hosted_;
    std::unique_ptr<Widget> widget_;
    std::vector<std::shared_ptr<Slot>> children_; // go before the widget that they stand in
    std::vector<Widget*> placed_; // the children's widgets as the widget has them now
    bool isShown_ = true;
    bool hasChanged_ = false;
};

} // namespace ui
