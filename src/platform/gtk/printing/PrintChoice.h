#pragma once

#include "platform/gtk/foundation/ObjectPointer.h"

#include <gtk/gtk.h>
#include <string>

namespace gtk {

// What the user chose in the last print panel of this run, for the next one.
struct PrintChoice {
    std::string printer; // empty before the first choice
    ObjectPointer<GtkPageSetup> setup; // null likewise
};

} // namespace gtk
