#include "platform/gtk/ui/PaddingLayout.h"

#include "platform/gtk/ui/Allocation.h"

#include <cmath>

namespace gtk {

PaddingLayout::PaddingLayout()
    : Glib::ObjectBase("VelmaroPaddingLayout")
{
}

Glib::RefPtr<PaddingLayout> PaddingLayout::create()
{
    return Glib::make_refptr_for_instance(new PaddingLayout);
}

void PaddingLayout::set(const ui::PaddingOptions& options)
{
    if (options_ == options)
        return;
    options_ = options;
    layout_changed();
}

int PaddingLayout::before(Gtk::Orientation orientation) const
{
    const double points = orientation == Gtk::Orientation::HORIZONTAL
        ? options_.leading.value_or(options_.horizontal)
        : options_.top.value_or(options_.vertical);
    return static_cast<int>(std::lround(points));
}

int PaddingLayout::total(Gtk::Orientation orientation) const
{
    const double after = orientation == Gtk::Orientation::HORIZONTAL
        ? options_.trailing.value_or(options_.horizontal)
        : options_.bottom.value_or(options_.vertical);
    return before(orientation) + static_cast<int>(std::lround(after));
}

void PaddingLayout::measure_vfunc(const Gtk::Widget& widget, Gtk::Orientation orientation,
    int forSize, int& minimum, int& natural, int& minimumBaseline, int& naturalBaseline) const
{
    const auto across = orientation == Gtk::Orientation::HORIZONTAL ? Gtk::Orientation::VERTICAL
                                                                    : Gtk::Orientation::HORIZONTAL;
    const int childSize = forSize < 0 ? -1 : std::max(0, forSize - total(across));
    Measure child;
    if (const auto* only = widget.get_first_child())
        child = measureChild(*only, orientation, childSize);
    minimum = child.minimum + total(orientation);
    natural = child.natural + total(orientation);
    minimumBaseline = naturalBaseline = -1;
}

void PaddingLayout::allocate_vfunc(const Gtk::Widget& widget, int width, int height, int)
{
    auto* child = const_cast<Gtk::Widget&>(widget).get_first_child();
    if (!child)
        return;
    allocateAligned(*child,
        {before(Gtk::Orientation::HORIZONTAL), before(Gtk::Orientation::VERTICAL),
            width - total(Gtk::Orientation::HORIZONTAL),
            height - total(Gtk::Orientation::VERTICAL)},
        ui::Alignment::center);
}

} // namespace gtk
