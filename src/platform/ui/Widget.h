#pragma once

#include <cstddef>
#include <memory>

namespace ui {

struct Node;
class HostedView;

// A long-lived native counterpart of one node: the backend's part of a place in the tree, which
// owns it. Main thread only; no operation fails.
class Widget {
public:
    virtual ~Widget() = default;

    // Shows `node`, which is of the kind that the widget was made for. Called first right after the
    // widget is made, before it has children.
    virtual void apply(const Node& node) = 0;

    // Puts `child` at `index` among the children: a new one, or one that stands at another index,
    // which is moved without ever leaving the widget.
    virtual void place(Widget& child, std::size_t index) = 0;

    // Takes `child` away, after its transition where it has one. `owner` keeps it and everything in
    // it alive.
    virtual void remove(Widget& child, std::shared_ptr<void> owner) = 0;

    // Whether the widget is inside something invisible, called for hosted views only: at first, and
    // on each change.
    virtual void setShown(bool) { }
};

// Makes widgets for the nodes of one window.
class Renderer {
public:
    virtual ~Renderer() = default;

    // Never null.
    virtual std::unique_ptr<Widget> makeWidget(const Node& node) = 0;

    // The place of a native view, which the backend makes with `view()`: at once, or after the
    // window's first frame when the view asks for that. `hosted` outlives the widget.
    virtual std::unique_ptr<Widget> makeHost(HostedView& hosted) = 0;
};

} // namespace ui
