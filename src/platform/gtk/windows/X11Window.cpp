#include "platform/gtk/windows/X11Window.h"

#include "platform/gtk/foundation/SignalHandlers.h"

#include <gdk/x11/gdkx.h>
#include <memory>
#include <X11/Xatom.h>
#include <X11/Xutil.h>

// Xlib is still the only way to them, which GTK discourages by deprecation.
G_GNUC_BEGIN_IGNORE_DEPRECATIONS

namespace gtk::X11Window {

namespace {

// The sizes of what surrounds a window, in pixels.
struct Edges {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
};

// An X window and the ways to it.
struct Handle {
    Display* display;
    Window window;
    Window root;
    int scale; // pixels a point
};

std::optional<Handle> handleOf(Gtk::Window& window)
{
    auto* surface = gtk_native_get_surface(GTK_NATIVE(window.gobj()));
    if (!surface || !GDK_IS_X11_SURFACE(surface))
        return std::nullopt;
    auto* display = gdk_surface_get_display(surface);
    return Handle{
        .display = gdk_x11_display_get_xdisplay(display),
        .window = gdk_x11_surface_get_xid(surface),
        .root = gdk_x11_display_get_xrootwindow(display),
        .scale = gdk_surface_get_scale_factor(surface),
    };
}

// A property of four cardinals, as window managers and toolkits tell each other about frames and
// shadows.
Edges edges(const Handle& handle, const char* property)
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* bytes = nullptr;
    XGetWindowProperty(handle.display, handle.window, XInternAtom(handle.display, property, False),
        0, 4, False, XA_CARDINAL, &type, &format, &count, &rest, &bytes);

    Edges edges;
    if (type == XA_CARDINAL && format == 32 && count == 4) {
        const auto* values = reinterpret_cast<const long*>(bytes);
        edges = {static_cast<int>(values[0]), static_cast<int>(values[1]),
            static_cast<int>(values[2]), static_cast<int>(values[3])};
    }
    if (bytes)
        XFree(bytes);
    return edges;
}

// GTK tells the window manager about the shadow only when the window is shown, so it is taken from
// where it comes from.
Edges shadow(Gtk::Window& window, int scale)
{
    if (!window.has_css_class("csd"))
        return {};
    double left = 0;
    double top = 0;
    gtk_native_get_surface_transform(GTK_NATIVE(window.gobj()), &left, &top);
    return {.left = static_cast<int>(left) * scale, .top = static_cast<int>(top) * scale};
}

// Without this a window manager places a new window by its own taste.
void claimPosition(const Handle& handle, int x, int y)
{
    auto* hints = XAllocSizeHints();
    long supplied = 0;
    XGetWMNormalHints(handle.display, handle.window, hints, &supplied);
    hints->flags |= USPosition | PWinGravity;
    hints->x = x;
    hints->y = y;
    hints->win_gravity = StaticGravity;
    XSetWMNormalHints(handle.display, handle.window, hints);
    XFree(hints);
}

struct Watcher {
    Window window;
    std::function<void()> handler;
    SignalHandlers signals;
};

gboolean handleEvent(GdkX11Display*, gpointer event, gpointer data)
{
    const auto& watcher = *static_cast<Watcher*>(data);
    const auto& configure = static_cast<XEvent*>(event)->xconfigure;
    if (configure.type == ConfigureNotify && configure.window == watcher.window)
        watcher.handler();
    return GDK_EVENT_PROPAGATE;
}

} // namespace

std::optional<Gdk::Rectangle> workArea(GdkMonitor* monitor)
{
    if (!GDK_IS_X11_MONITOR(monitor))
        return std::nullopt;
    GdkRectangle area;
    gdk_x11_monitor_get_workarea(monitor, &area);
    return Gdk::Rectangle(area.x, area.y, area.width, area.height);
}

Glib::RefPtr<Gdk::Monitor> primaryMonitor(Gdk::Display& display)
{
    if (!GDK_IS_X11_DISPLAY(display.gobj()))
        return {};
    return Glib::wrap(gdk_x11_display_get_primary_monitor(display.gobj()), true);
}

std::optional<Gdk::Rectangle> outerFrame(Gtk::Window& window)
{
    const auto handle = handleOf(window);
    if (!handle)
        return std::nullopt;

    XWindowAttributes attributes;
    Window child = 0;
    int x = 0;
    int y = 0;
    if (!XGetWindowAttributes(handle->display, handle->window, &attributes)
        || !XTranslateCoordinates(
            handle->display, handle->window, handle->root, 0, 0, &x, &y, &child))
        return std::nullopt;

    const auto frame = edges(*handle, "_NET_FRAME_EXTENTS");
    const auto shadow = edges(*handle, "_GTK_FRAME_EXTENTS");
    const int width = attributes.width + frame.left + frame.right - shadow.left - shadow.right;
    const int height = attributes.height + frame.top + frame.bottom - shadow.top - shadow.bottom;
    return Gdk::Rectangle((x - frame.left + shadow.left) / handle->scale,
        (y - frame.top + shadow.top) / handle->scale, width / handle->scale,
        height / handle->scale);
}

void move(Gtk::Window& window, int x, int y)
{
    const auto handle = handleOf(window);
    if (!handle)
        return;

    const auto edge = shadow(window, handle->scale);
    const int left = x * handle->scale - edge.left;
    const int top = y * handle->scale - edge.top;
    if (!window.get_mapped())
        claimPosition(*handle, left, top);
    XMoveWindow(handle->display, handle->window, left, top);
}

void onConfigured(Gtk::Window& window, std::function<void()> handler)
{
    const auto handle = handleOf(window);
    if (!handle)
        return;
    auto watcher = std::make_shared<Watcher>();
    watcher->window = handle->window;
    watcher->handler = std::move(handler);
    watcher->signals.connect(
        window.get_display()->gobj(), "xevent", G_CALLBACK(handleEvent), watcher.get());
    window.signal_unrealize().connect([watcher]() mutable { watcher.reset(); });
}

} // namespace gtk::X11Window

G_GNUC_END_IGNORE_DEPRECATIONS
