#include "platform/gtk/ui/FrameLayout.h"

#include "platform/gtk/ui/Allocation.h"

#include <algorithm>
#include <cmath>

namespace gtk {

namespace {

struct Bounds {
    std::optional<double> fixed;
    std::optional<double> minimum;
    std::optional<double> ideal;
    std::optional<double> maximum;
};

Bounds boundsAlong(const ui::FrameOptions& options, Gtk::Orientation orientation)
{
    if (orientation == Gtk::Orientation::HORIZONTAL)
        return {options.width, options.minWidth, options.idealWidth, options.maxWidth};
    return {options.height, options.minHeight, options.idealHeight, options.maxHeight};
}

Measure bounded(Measure child, const Bounds& bounds)
{
    const auto points = [](double length) { return static_cast<int>(std::lround(length)); };
    if (bounds.fixed)
        return {points(*bounds.fixed), points(*bounds.fixed)};

    Measure measure = child;
    if (bounds.minimum)
        measure.minimum = points(*bounds.minimum);
    if (bounds.ideal)
        measure.natural = points(*bounds.ideal);
    if (bounds.maximum && std::isfinite(*bounds.maximum))
        measure.natural = std::min(measure.natural, points(*bounds.maximum));
    measure.natural = std::max(measure.natural, measure.minimum);
    return measure;
}

} // namespace

FrameLayout::FrameLayout()
    : Glib::ObjectBase("VelmaroFrameLayout")
{
}

Glib::RefPtr<FrameLayout> FrameLayout::create()
{
    return Glib::make_refptr_for_instance(new FrameLayout);
}

void FrameLayout::set(const ui::FrameOptions& options)
{
    if (options_ == options)
        return;
    options_ = options;
    layout_changed();
}

void FrameLayout::measure_vfunc(const Gtk::Widget& widget, Gtk::Orientation orientation,
    int forSize, int& minimum, int& natural, int& minimumBaseline, int& naturalBaseline) const
{
    Measure child;
    if (const auto* only = widget.get_first_child())
        child = measureChild(*only, orientation, forSize);
    const auto measure = bounded(child, boundsAlong(options_, orientation));
    minimum = measure.minimum;
    natural = measure.natural;
    minimumBaseline = naturalBaseline = -1;
}

void FrameLayout::allocate_vfunc(const Gtk::Widget& widget, int width, int height, int)
{
    if (auto* child = const_cast<Gtk::Widget&>(widget).get_first_child())
        allocateAligned(*child, {0, 0, width, height}, options_.alignment);
}

} // namespace gtk
