#pragma once

#include <gtkmm/text.h>
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

// The toolkit means a bare field to be part of an entry, and keeps it from screen readers. To be
// called when the field is made.
inline void setAccessibleAsField(Gtk::Text& text)
{
    g_object_set(text.gobj(), "accessible-role", GTK_ACCESSIBLE_ROLE_TEXT_BOX, nullptr);
}

} // namespace gtk
