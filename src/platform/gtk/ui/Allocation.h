#pragma once

#include "platform/ui/Layout.h"

#include <gtkmm/enums.h>
#include <gtkmm/widget.h>

namespace gtk {

// Whether `widget`, or something in it, wants all the room there is.
bool isExpanding(const Gtk::Widget& widget, Gtk::Orientation orientation);

// Gives `child` the whole area where it expands, and its natural size at the given place in it
// where it does not.
void allocateAligned(Gtk::Widget& child, const Gtk::Allocation& area, ui::Alignment alignment);

// The least and the natural size of a widget along one axis.
struct Measure {
    int minimum = 0;
    int natural = 0;
};
Measure measureChild(const Gtk::Widget& child, Gtk::Orientation orientation, int forSize = -1);

} // namespace gtk
