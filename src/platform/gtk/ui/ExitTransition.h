#pragma once

#include "platform/ui/Transition.h"

#include <functional>
#include <gtkmm/widget.h>
#include <memory>

namespace gtk {

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
