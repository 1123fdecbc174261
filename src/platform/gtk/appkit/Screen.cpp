#include "platform/gtk/appkit/Screen.h"

#include "platform/gtk/appkit/ScreenCoordinates.h"
#include "platform/gtk/appkit/X11Window.h"

#include <gdkmm/display.h>

namespace gtk {

Screen* Screen::first()
{
    const auto display = Gdk::Display::get_default();
    if (!display)
        return nullptr;
    if (const auto primary = X11Window::primaryMonitor(*display))
        return of(primary->gobj());

    const auto monitors = display->get_monitors();
    const auto monitor = std::dynamic_pointer_cast<Gdk::Monitor>(monitors->get_object(0));
    return monitor ? of(monitor->gobj()) : nullptr;
}

Screen* Screen::of(GdkSurface* surface)
{
    auto* display = gdk_surface_get_display(surface);
    auto* monitor = gdk_display_get_monitor_at_surface(display, surface);
    return monitor ? of(monitor) : nullptr;
}

Screen* Screen::of(GdkMonitor* monitor)
{
    constexpr auto key = "velmaro-screen";
    auto* object = G_OBJECT(monitor);
    auto* screen = static_cast<Screen*>(g_object_get_data(object, key));
    if (!screen) {
        screen = new Screen(monitor);
        g_object_set_data_full(
            object, key, screen, [](gpointer data) { delete static_cast<Screen*>(data); });
    }
    return screen;
}

platform::NSRect Screen::visibleFrame() const
{
    const auto area = X11Window::workArea(monitor_).value_or(geometry());
    return fromDesktop(area, first()->geometry());
}

Gdk::Rectangle Screen::geometry() const
{
    GdkRectangle area;
    gdk_monitor_get_geometry(monitor_, &area);
    return {area.x, area.y, area.width, area.height};
}

} // namespace gtk
