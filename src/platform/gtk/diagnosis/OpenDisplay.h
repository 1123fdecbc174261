#pragma once

#include <gtk/gtk.h>

namespace gtk {

// Starts the toolkit. The display that it has opened; null where there is none.
GdkDisplay* openDisplay();

} // namespace gtk
