#include "platform/gtk/ui/Departure.h"

#include "platform/gtk/ui/Presence.h"

#include <glibmm/main.h>

namespace gtk {

Departure::Departure(Gtk::Widget& widget, std::shared_ptr<void> owner)
    : widget_(widget)
    , owner_(std::move(owner))
{
    widget_.set_can_target(false);
}

Departure::~Departure()
{
    widget_.unparent();
}

void Departure::begin(
    const ui::Transition& transition, std::function<void(const Departure&)> completion)
{
    animatePresence(widget_, transition, 1, 0,
        [weakSelf = weak_from_this(), completion = std::move(completion)] {
            // The widget cannot go inside its own tick.
            Glib::signal_idle().connect_once([weakSelf, completion] {
                if (const auto self = weakSelf.lock())
                    completion(*self);
            });
        });
}

} // namespace gtk
