#include "platform/gtk/windows/GtkScreen.h"

#include "platform/gtk/windows/X11Window.h"

#include <cmath>
#include <gdkmm/display.h>

namespace gtk {

namespace {

int whole(double points)
{
    return static_cast<int>(std::floor(points));
}

} // namespace

GtkScreen* GtkScreen::first()
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

GtkScreen* GtkScreen::of(GdkSurface* surface)
{
    auto* display = gdk_surface_get_display(surface);
    auto* monitor = gdk_display_get_monitor_at_surface(display, surface);
    return monitor ? of(monitor) : nullptr;
}

GtkScreen* GtkScreen::of(GdkMonitor* monitor)
{
    constexpr auto key = "velmaro-screen";
    auto* object = G_OBJECT(monitor);
    auto* screen = static_cast<GtkScreen*>(g_object_get_data(object, key));
    if (!screen) {
        screen = new GtkScreen(monitor);
        g_object_set_data_full(
            object, key, screen, [](gpointer data) { delete static_cast<GtkScreen*>(data); });
    }
    return screen;
}

platform::NSRect GtkScreen::visibleFrame() const
{
    const auto area = X11Window::workArea(monitor_).value_or(geometry());
    return fromDesktop(area, first()->geometry());
}

Gdk::Rectangle GtkScreen::geometry() const
{
    GdkRectangle area;
    gdk_monitor_get_geometry(monitor_, &area);
    return {area.x, area.y, area.width, area.height};
}

platform::NSRect fromDesktop(const Gdk::Rectangle& area, const Gdk::Rectangle& first)
{
    const int below = first.get_y() + first.get_height() - area.get_y() - area.get_height();
    return {
        .origin = {static_cast<double>(area.get_x() - first.get_x()), static_cast<double>(below)},
        .size = {static_cast<double>(area.get_width()), static_cast<double>(area.get_height())},
    };
}

Gdk::Rectangle toDesktop(const platform::NSRect& area, const Gdk::Rectangle& first)
{
    const double top = first.get_y() + first.get_height() - area.origin.y - area.size.height;
    return {
        whole(area.origin.x + first.get_x()),
        whole(top),
        whole(area.size.width),
        whole(area.size.height),
    };
}

} // namespace gtk
