#pragma once

#include <functional>
#include <gtkmm/widget.h>

namespace gtk {

// Whether a change inside `widget` is to be shown as a movement: the widget is on the screen, and
// the desktop does not ask for less motion.
bool isAnimated(const Gtk::Widget& widget);

// Takes the opacity of `widget` from one value to the other in `duration` seconds along an ease-out
// curve, beginning at once. `completion` may be empty; it is not called when the widget goes away
// before.
void fade(Gtk::Widget& widget, double from, double to, double duration,
    std::function<void()> completion = {});

} // namespace gtk
