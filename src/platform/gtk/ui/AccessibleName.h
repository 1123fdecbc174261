#pragma once

#include <gtkmm/widget.h>
#include <string>

namespace gtk {

// What a screen reader, and a test, finds `widget` by: this name, without the text of a label of
// its own, which would be read a second time.
inline void setAccessibleName(Gtk::Widget& widget, const std::string& name)
{
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, name.c_str(), -1);
    gtk_accessible_reset_relation(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_RELATION_LABELLED_BY);
}

} // namespace gtk
