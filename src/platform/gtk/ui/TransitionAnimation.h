#pragma once

#include "platform/ui/Transition.h"

#include <functional>
#include <gtkmm/widget.h>

namespace gtk {

// How much a child is there while it comes or goes: from 0, not at all, to 1.

// Whether a change inside `widget` is to be shown as a movement: the widget is on the screen, and
// the desktop does not ask for less motion.
bool isAnimated(const Gtk::Widget& widget);

// Takes `child` from one presence to the other in the time of the transition, beginning at once:
// its opacity, and its distance from the edge that it moves from where its parent arranges layers.
// `completion` may be empty; it is not called when the child goes away before.
void animateTransition(Gtk::Widget& child, const ui::Transition& transition, double from, double to,
    std::function<void()> completion = {});

// How far a child that comes or goes is from its place, in points.
struct Offset {
    int x = 0;
    int y = 0;
};
Offset transitionOffset(const Gtk::Widget& child, int width, int height);

} // namespace gtk
