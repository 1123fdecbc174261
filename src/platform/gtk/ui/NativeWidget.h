#pragma once

#include "platform/ui/Widget.h"

#include <gtkmm/widget.h>

namespace gtk {

// A widget of the view layer on its GTK widget. Leaves take no children.
class NativeWidget : public ui::Widget {
public:
    virtual Gtk::Widget& native() = 0;

    void place(ui::Widget&, std::size_t) override { }
    void remove(ui::Widget&, std::shared_ptr<void>) override { }
};

inline Gtk::Widget& nativeOf(ui::Widget& widget)
{
    return static_cast<NativeWidget&>(widget).native();
}

// Owns one childless GTK widget and unparents it on destruction.
template <class Native> class LeafWidget : public NativeWidget {
public:
    ~LeafWidget() override
    {
        if (leaf_.get_parent())
            leaf_.unparent();
    }

    Gtk::Widget& native() final { return leaf_; }

protected:
    Native& leaf() { return leaf_; }

private:
    Native leaf_;
};

// The GTK side of a platform view: every `NSView` of this backend is one of these too.
class NativeView {
public:
    virtual ~NativeView() = default;

    // The widget to be placed in the window; lives as long as the view.
    virtual Gtk::Widget& nativeWidget() = 0;

    // The view has become part of what can be seen and clicked, or no longer is: its tab was chosen
    // or left.
    virtual void setShown(bool) { }
};

// Whether the user can get at `widget`: it is in no tab that is not shown, and under no sheet. The
// toolkit itself looks at no widget around the one that is given the focus.
inline bool isReachable(const Gtk::Widget& widget)
{
    for (const auto* place = &widget; place; place = place->get_parent()) {
        if (!place->get_can_target() || !place->get_can_focus())
            return false;
    }
    return true;
}

} // namespace gtk
