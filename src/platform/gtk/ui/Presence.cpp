#include "platform/gtk/ui/Fade.h"

#include <algorithm>
#include <gtkmm/settings.h>

namespace gtk {

namespace {

double easeOut(double progress)
{
    const double rest = 1 - progress;
    return 1 - rest * rest * rest;
}

} // namespace

bool isAnimated(const Gtk::Widget& widget)
{
    const auto settings = Gtk::Settings::get_default();
    return widget.get_mapped() && settings && settings->property_gtk_enable_animations();
}

void fade(
    Gtk::Widget& widget, double from, double to, double duration, std::function<void()> completion)
{
    widget.set_opacity(from);
    const auto start = g_get_monotonic_time();
    widget.add_tick_callback([=, &widget](const Glib::RefPtr<Gdk::FrameClock>&) {
        const double elapsed = static_cast<double>(g_get_monotonic_time() - start) / G_USEC_PER_SEC;
        const double progress = std::min(elapsed / duration, 1.0);
        widget.set_opacity(from + (to - from) * easeOut(progress));
        if (progress < 1)
            return true;
        if (completion)
            completion();
        return false;
    });
}

} // namespace gtk
