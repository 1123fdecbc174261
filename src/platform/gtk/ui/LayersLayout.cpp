#include "platform/gtk/ui/LayersLayout.h"

#include "platform/gtk/ui/Allocation.h"
#include "platform/ui/ViewNodes.h"

#include <algorithm>

namespace gtk {

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

} // namespace gtk
