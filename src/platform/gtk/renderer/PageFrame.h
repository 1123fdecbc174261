#pragma once

#include <gtk/gtk.h>

namespace gtk {

// Whether what was painted of a web view last is a page, and not the empty area that is there
// before the first one and when the engine's pictures do not arrive.
bool showsPage(GtkWidget* webView);

} // namespace gtk
