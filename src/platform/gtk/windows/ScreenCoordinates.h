#pragma once

#include "platform/appkit/Geometry.h"

#include <gdkmm/rectangle.h>

namespace gtk {

// The desktop counts from its upper left corner downwards, `NSRect` from the lower left corner of
// the first screen upwards. `first` is where that screen lies on the desktop.
platform::NSRect fromDesktop(const Gdk::Rectangle& area, const Gdk::Rectangle& first);

// To whole points, rounded up and to the left.
Gdk::Rectangle toDesktop(const platform::NSRect& area, const Gdk::Rectangle& first);

} // namespace gtk
