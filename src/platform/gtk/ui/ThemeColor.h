#pragma once

#include "platform/ui/Color.h"

#include <gdkmm/rgba.h>
#include <gtkmm/widget.h>

namespace gtk {

// What `color` is on the desktop's theme as it is now.
Gdk::RGBA themeColor(const Gtk::Widget& widget, const ui::Color& color);

// The same for what is drawn in a colour, such as a symbol: an accent is brought closer to the
// colour of text, because themes make theirs to stand behind white.
Gdk::RGBA themeInk(const Gtk::Widget& widget, const ui::Color& color);

} // namespace gtk
