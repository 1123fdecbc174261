#include "platform/gtk/launch/DisplayLossHandler.h"

#include <cstdlib>
#include <gdk/x11/gdkx.h>
#include <unistd.h>
#include <utility>

namespace gtk {

namespace {

// Xlib's handler has no argument to find these by.
std::function<void()>* currentLastWords = nullptr;

int connectionLost(Display* display)
{
    if (auto* server = XOpenDisplay(DisplayString(display)))
        XCloseDisplay(server);
    else if (auto* lastWords = std::exchange(currentLastWords, nullptr))
        (*lastWords)();
    _exit(EXIT_FAILURE); // Xlib cannot go on
}

} // namespace

DisplayLossHandler::DisplayLossHandler(std::function<void()> lastWords)
    : lastWords_(std::move(lastWords))
{
    if (!GDK_IS_X11_DISPLAY(gdk_display_get_default()))
        return;
    currentLastWords = &lastWords_;
    XSetIOErrorHandler(connectionLost);
}

DisplayLossHandler::~DisplayLossHandler()
{
    currentLastWords = nullptr;
}

} // namespace gtk
