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

} // namespace gtk
