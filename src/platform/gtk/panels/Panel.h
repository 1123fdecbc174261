#pragma once

#include <gtkmm/window.h>
#include <string>

namespace gtk {

// Shows `window`, which has its content, over the window in use: nothing can be done there until it
// is closed, for which Escape does too. Closing only hides it.
void presentPanel(Gtk::Window& window, const std::string& title);

} // namespace gtk
