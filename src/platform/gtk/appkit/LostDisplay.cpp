#include "platform/gtk/appkit/LostDisplay.h"

#include <gdk/x11/gdkx.h>
#include <unistd.h>

namespace gtk {

namespace {

// Xlib's handler has no argument to find these by.
std::function<void()>* lastWords = nullptr;

int connectionLost(Display* display)
{
    if (auto* server = XOpenDisplay(DisplayString(display)))
        XCloseDisplay(server);
    else if (auto* words = std::exchange(lastWords, nullptr))
        (*words)();
    _exit(EXIT_FAILURE); // Xlib cannot go on
}

} // namespace

void onLostDisplay(std::function<void()> words)
{
    if (!GDK_IS_X11_DISPLAY(gdk_display_get_default()))
        return;
    static std::function<void()> storage;
    storage = std::move(words);
    lastWords = &storage;
    XSetIOErrorHandler(connectionLost);
}

} // namespace gtk
