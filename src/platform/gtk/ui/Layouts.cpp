#include "platform/gtk/ui/Layouts.h"

#include "platform/gtk/ui/Allocation.h"
#include "platform/ui/ViewNodes.h"

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

LayersLayout::LayersLayout()
    : Glib::ObjectBase("VelmaroLayersLayout")
{
}

Glib::RefPtr<LayersLayout> LayersLayout::create()
{
    return Glib::make_refptr_for_instance(new LayersLayout);
}

void LayersLayout::set(ui::Alignment alignment, std::size_t base)
{
    if (alignment_ == alignment && base_ == base)
        return;
    alignment_ = alignment;
    base_ = base;
    layout_changed();
}

void LayersLayout::measure_vfunc(const Gtk::Widget& widget, Gtk::Orientation orientation,
    int forSize, int& minimum, int& natural, int& minimumBaseline, int& naturalBaseline) const
{
    minimum = natural = 0;
    minimumBaseline = naturalBaseline = -1;
    std::size_t index = 0;
    for (const auto* child = widget.get_first_child(); child; child = child->get_next_sibling()) {
        const bool counts = base_ == ui::LayersNode::allChildren || index == base_;
        ++index;
        if (!counts || !child->should_layout())
            continue;
        const auto measure = measureChild(*child, orientation, forSize);
        minimum = std::max(minimum, measure.minimum);
        natural = std::max(natural, measure.natural);
    }
}

void LayersLayout::allocate_vfunc(const Gtk::Widget& widget, int width, int height, int)
{
    auto& parent = const_cast<Gtk::Widget&>(widget);
    for (auto* child = parent.get_first_child(); child; child = child->get_next_sibling())
        allocateAligned(*child, {0, 0, width, height}, alignment_);
}

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
