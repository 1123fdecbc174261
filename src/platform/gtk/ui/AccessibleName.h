#pragma once

#include <gtkmm/widget.h>
#include <string>

namespace gtk {

// What a screen reader, and a test, finds `widget` by.
inline void setAccessibleName(Gtk::Widget& widget, const std::string& name)
{
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, name.c_str(), -1);
}

} // namespace gtk
