#include "platform/gtk/diagnosis/OpenDisplay.h"

namespace gtk {

GdkDisplay* openDisplay()
{
    gtk_disable_setlocale(); // the program has chosen its locale
    return gtk_init_check() ? gdk_display_get_default() : nullptr;
}

} // namespace gtk
