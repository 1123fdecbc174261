#pragma once

#include "platform/ui/MenuItem.h"

#include <functional>
#include <gtk/gtk.h>

namespace gtk {

class FocusTracker;

// Does what the platform's own menu items say, to the window and the widget that have the focus.
// Those for the whole program are left to the caller: nothing happens here for them.
void perform(ui::StandardCommand command, FocusTracker& focus);

} // namespace gtk
