#pragma once

#include "platform/ui/Transition.h"

#include <functional>
#include <gtkmm/widget.h>
#include <memory>

namespace gtk {

// A child that has been removed and is seen for a moment longer, while it fades or moves away.
class Departure : public std::enable_shared_from_this<Departure> {
public:
    // `owner` keeps `widget` and everything in it alive.
    Departure(Gtk::Widget& widget, std::shared_ptr<void> owner);

    // Takes the widget out of its parent.
    ~Departure();

    // Goes as the transition says; `completion` then drops the departure.
    void begin(const ui::Transition& transition, std::function<void(const Departure&)> completion);

private:
    Gtk::Widget& widget_;
    std::shared_ptr<void> owner_;
};

} // namespace gtk
