#pragma once

#include <gdkmm/paintable.h>

namespace gtk {

// The application's own picture, square; null when the program was built without one.
Glib::RefPtr<Gdk::Paintable> applicationIcon();

} // namespace gtk
