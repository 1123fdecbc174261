#pragma once

#include <cairomm/surface.h>
#include <gdkmm/paintable.h>
#include <string>

// The pictures that the program carries.

namespace gtk {

// The application's own picture, square; null when the program was built without one.
Glib::RefPtr<Gdk::Paintable> applicationIcon();

// The application's symbol of that name as a mask of `pixels` by `pixels`: opaque where it is to be
// painted. Drawn once for each size and kept. Null when there is no such symbol.
Cairo::RefPtr<Cairo::ImageSurface> symbolMask(const std::string& name, int pixels);

} // namespace gtk
