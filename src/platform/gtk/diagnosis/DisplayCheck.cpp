#include "platform/gtk/diagnosis/Checks.h"
#include "platform/gtk/diagnosis/OpenDisplay.h"
#include "platform/gtk/foundation/ObjectPointer.h"

#include <string_view>

namespace gtk {

namespace {

std::string kind(GdkDisplay* display)
{
    const std::string_view type = G_OBJECT_TYPE_NAME(display);
    if (type == "GdkX11Display")
        return "X11";
    if (type == "GdkWaylandDisplay")
        return "Wayland";
    return std::string(type);
}

std::string size(GdkMonitor* monitor)
{
    GdkRectangle place;
    gdk_monitor_get_geometry(monitor, &place);
    const int scale = gdk_monitor_get_scale_factor(monitor);
    auto text = std::to_string(place.width) + " × " + std::to_string(place.height);
    return scale == 1 ? text : text + " at scale " + std::to_string(scale);
}

} // namespace

std::vector<Finding> checkDisplay()
{
    auto* display = openDisplay();
    if (!display) {
        return {{
            .title = "Display",
            .finding = "there is none to open a window on",
            .verdict = Verdict::problem,
            .advice = "Start the program inside a desktop session; WAYLAND_DISPLAY or DISPLAY "
                      "names its display.",
        }};
    }
    auto finding = kind(display);
    auto* monitors = gdk_display_get_monitors(display);
    for (guint index = 0; index < g_list_model_get_n_items(monitors); ++index) {
        const ObjectPointer<GdkMonitor> monitor(
            GDK_MONITOR(g_list_model_get_item(monitors, index)));
        finding += ", " + size(monitor.get());
    }
    return {{"Display", finding}};
}

} // namespace gtk
