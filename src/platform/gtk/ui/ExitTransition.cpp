#include "platform/gtk/ui/ExitTransition.h"

#include "platform/gtk/ui/TransitionAnimation.h"

#include <glibmm/main.h>

namespace gtk {

ExitTransition::ExitTransition(Gtk::Widget& widget, std::shared_ptr<void> owner)
    : widget_(widget)
    , owner_(std::move(owner))
{
    widget_.set_can_target(false);
}

ExitTransition::~ExitTransition()
{
    widget_.unparent();
}

void ExitTransition::begin(
    const ui::Transition& transition, std::function<void(const ExitTransition&)> completion)
{
    animateTransition(widget_, transition, 1, 0,
        [weakSelf = weak_from_this(), completion = std::move(completion)] {
            // The widget cannot go inside its own tick.
            Glib::signal_idle().connect_once([weakSelf, completion] {
                if (const auto self = weakSelf.lock())
                    completion(*self);
            });
        });
}

} // namespace gtk
