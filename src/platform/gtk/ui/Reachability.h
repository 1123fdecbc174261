#pragma once

#include <gtkmm/widget.h>

namespace gtk {

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
