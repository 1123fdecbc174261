#include "platform/gtk/windows/ScreenCoordinates.h"

#include <cmath>

namespace gtk {

namespace {

int whole(double points)
{
    return static_cast<int>(std::floor(points));
}

} // namespace

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
