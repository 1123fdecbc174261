#include "platform/gtk/ui/Allocation.h"

#include "platform/gtk/ui/TransitionAnimation.h"

#include <algorithm>

namespace gtk {

namespace {

// 0 for the beginning of an axis, 0.5 for its middle, 1 for its end.
double horizontalPlace(ui::Alignment alignment)
{
    switch (alignment) {
    case ui::Alignment::leading:
    case ui::Alignment::topLeading:
    case ui::Alignment::bottomLeading:
        return 0;
    case ui::Alignment::trailing:
    case ui::Alignment::topTrailing:
    case ui::Alignment::bottomTrailing:
        return 1;
    default:
        return 0.5;
    }
}

double verticalPlace(ui::Alignment alignment)
{
    switch (alignment) {
    case ui::Alignment::top:
    case ui::Alignment::topLeading:
    case ui::Alignment::topTrailing:
        return 0;
    case ui::Alignment::bottom:
    case ui::Alignment::bottomLeading:
    case ui::Alignment::bottomTrailing:
        return 1;
    default:
        return 0.5;
    }
}

int extent(const Gtk::Widget& child, Gtk::Orientation orientation, int forSize, int available)
{
    const auto [minimum, natural] = measureChild(child, orientation, forSize);
    if (isExpanding(child, orientation))
        return std::max(minimum, available);
    return std::max(minimum, std::min(natural, available));
}

} // namespace

bool isExpanding(const Gtk::Widget& widget, Gtk::Orientation orientation)
{
    return gtk_widget_compute_expand(
        const_cast<GtkWidget*>(widget.gobj()), static_cast<GtkOrientation>(orientation));
}

Measure measureChild(const Gtk::Widget& child, Gtk::Orientation orientation, int forSize)
{
    Measure measure;
    int minimumBaseline = -1;
    int naturalBaseline = -1;
    child.measure(
        orientation, forSize, measure.minimum, measure.natural, minimumBaseline, naturalBaseline);
    return measure;
}

void allocateAligned(Gtk::Widget& child, const Gtk::Allocation& area, ui::Alignment alignment)
{
    if (!child.should_layout())
        return;
    const int width = extent(child, Gtk::Orientation::HORIZONTAL, -1, area.get_width());
    const int height = extent(child, Gtk::Orientation::VERTICAL, width, area.get_height());
    const double x = horizontalPlace(alignment) * (area.get_width() - width);
    const double y = verticalPlace(alignment) * (area.get_height() - height);
    const auto offset = transitionOffset(child, width, height);
    child.size_allocate({area.get_x() + static_cast<int>(x) + offset.x,
                            area.get_y() + static_cast<int>(y) + offset.y, width, height},
        -1);
}

} // namespace gtk
