#pragma once

#include <functional>
#include <gtkmm/widget.h>
#include <string>
#include <vector>

namespace ui {
struct GroupNode;
}

namespace gtk {

// What the pointer does to a group: hovering, clicking, dragging and dropping. Event controllers
// are added when a group first needs them; they call the closures of the group as it is shown now.
class Interaction {
public:
    // `widget` must outlive this.
    explicit Interaction(Gtk::Widget& widget)
        : widget_(widget)
    {
    }

    void apply(const ui::GroupNode& group);

private:
    void addHover();
    void addTap();

    // Calls what `action`, a member, holds by then.
    void addClick(unsigned button, const std::function<void()>& action);
    void addDragSource();
    void addDropTarget();

    Gtk::Widget& widget_;
    std::function<void(bool)> onHover_;
    std::function<void()> onTap_;
    std::function<void()> onMiddleClick_;
    std::function<bool(const std::vector<std::string>&)> onDrop_;
    std::string dragPayload_;
    bool hasHover_ = false;
    bool hasTap_ = false;
    bool hasMiddleClick_ = false;
    bool hasDragSource_ = false;
    bool hasDropTarget_ = false;
};

} // namespace gtk
