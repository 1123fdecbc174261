#pragma once

#include <functional>
#include <gtk/gtk.h>

namespace gtk {

// The window manager's requests to close a window. The toolkit drops them while something modal,
// such as the print panel, is in front of that window; here all of them are told.
class CloseRequests {
public:
    // Tells of those for the window of `surface`, before the toolkit gets them.
    CloseRequests(GdkSurface* surface, std::function<void()> requested);
    ~CloseRequests();

    CloseRequests(const CloseRequests&) = delete;
    CloseRequests& operator=(const CloseRequests&) = delete;

private:
    static gboolean receive(
        GSignalInvocationHint*, guint, const GValue* arguments, gpointer requests);

    GdkSurface* surface_; // only compared
    std::function<void()> requested_;
    gulong hook_;
};

} // namespace gtk
