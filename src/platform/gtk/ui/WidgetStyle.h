#pragma once

#include "platform/ui/Font.h"

#include <gdkmm/display.h>
#include <gtkmm/text.h>
#include <pangomm/attrlist.h>
#include <string>

// How widgets look, and what assistive technology calls them.

namespace gtk {

// Adds the application's own styles to the desktop's theme on `display`. Called again, it does
// nothing.
void installTheme(const Glib::RefPtr<Gdk::Display>& display);

// The desktop's font in that size and weight.
Pango::AttrList fontAttributes(const ui::Font& font);

// What a screen reader, and a test, finds `widget` by: this name, without the text of a label of
// its own, which would be read a second time.
void setAccessibleName(Gtk::Widget& widget, const std::string& name);

// The toolkit means a bare field to be part of an entry, and keeps it from screen readers. To be
// called when the field is made.
void setAccessibleAsField(Gtk::Text& text);

} // namespace gtk
