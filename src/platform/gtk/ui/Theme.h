#pragma once

#include <gdkmm/display.h>

namespace gtk {

// Adds the application's own styles to the desktop's theme on `display`. Called again, it does
// nothing.
void installTheme(const Glib::RefPtr<Gdk::Display>& display);

} // namespace gtk
