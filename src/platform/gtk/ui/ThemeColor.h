#pragma once

#include "platform/ui/Color.h"

#include <gdkmm/rgba.h>
#include <gtkmm/widget.h>

namespace gtk {

// What `color` is on the desktop's theme as it is now.
Gdk::RGBA themeColor(const Gtk::Widget& widget, const ui::Color& color);

} // namespace gtk
