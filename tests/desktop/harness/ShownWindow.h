#pragma once

#include <gtk/gtk.h>

namespace desktop {

// The first window of this program that is on screen and has what `suits` asks for; null when there
// is none.
template <class Condition> GtkWidget* shownWindow(Condition suits)
{
    GListModel* windows = gtk_window_get_toplevels();
    for (guint index = 0; index < g_list_model_get_n_items(windows); ++index) {
        auto* window = static_cast<GtkWidget*>(g_list_model_get_item(windows, index));
        g_object_unref(window); // the list keeps it
        if (gtk_widget_get_mapped(window) && suits(window))
            return window;
    }
    return nullptr;
}

} // namespace desktop
