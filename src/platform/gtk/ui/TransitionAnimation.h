#pragma once

#include "platform/ui/Transition.h"

#include <functional>
#include <gtkmm/widget.h>
#include <memory>

namespace gtk {

// Whether a change inside `widget` is to be shown as a movement: the widget is on the screen, and
// the desktop does not ask for less motion.
bool isAnimated(const Gtk::Widget& widget);

// Takes `child` from one presence to the other in the time of the transition, beginning at once.
// Presence is the progress of a transition, 0 absent, 1 shown: it gives the child its opacity and,
// where the parent arranges layers, its distance from the edge that it moves from. `completion` may
// be empty; it is not called when the child goes away before.
void animateTransition(Gtk::Widget& child, const ui::Transition& transition, double from, double to,
    std::function<void()> completion = {});

// How far a child that comes or goes is from its place, in points.
struct Offset {
    int x = 0;
    int y = 0;
};
Offset transitionOffset(const Gtk::Widget& child, int width, int height);

// A child that has been removed and is seen for a moment longer, while it fades or moves away.
class ExitTransition : public std::enable_shared_from_this<ExitTransition> {
public:
    // `owner` keeps `widget` and everything in it alive.
    ExitTransition(Gtk::Widget& widget, std::shared_ptr<void> owner);

    // Takes the widget out of its parent.
    ~ExitTransition();

    // Goes as the transition says; `completion` then drops the departure.
    void begin(
        const ui::Transition& transition, std::function<void(const ExitTransition&)> completion);

private:
    Gtk::Widget& widget_;
    std::shared_ptr<void> owner_;
};

} // namespace gtk
