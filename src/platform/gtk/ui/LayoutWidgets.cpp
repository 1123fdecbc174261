#include "platform/gtk/ui/LayoutWidgets.h"

#include "platform/gtk/ui/Allocation.h"
#include "platform/gtk/ui/Leaves.h"
#include "platform/ui/ViewNodes.h"

#include <cmath>

namespace gtk {

namespace {

// An extent that is fixed does not grow with its window, one without a limit does, and others do as
// their child.
void setExpand(Gtk::Widget& widget, const ui::FrameOptions& options)
{
    const auto isUnlimited = [](const auto& maximum) { return maximum && std::isinf(*maximum); };

    if (options.width || options.maxWidth)
        widget.set_hexpand(!options.width && isUnlimited(options.maxWidth));
    else
        widget.set_hexpand_set(false);
    if (options.height || options.maxHeight)
        widget.set_vexpand(!options.height && isUnlimited(options.maxHeight));
    else
        widget.set_vexpand_set(false);
}

} // namespace

LayersWidget::LayersWidget()
    : layout_(LayersLayout::create())
{
    native().set_layout_manager(layout_);
}

void LayersWidget::apply(const ui::Node& node)
{
    const auto& layers = static_cast<const ui::LayersNode&>(node);
    layout_->set(layers.alignment, layers.base);
    if (layers.base != ui::LayersNode::allChildren)
        setExpandingChild(layers.base);
}

FrameWidget::FrameWidget()
    : layout_(FrameLayout::create())
{
    native().set_layout_manager(layout_);
}

void FrameWidget::apply(const ui::Node& node)
{
    const auto& frame = static_cast<const ui::FrameNode&>(node);
    layout_->set(frame.options);
    setExpand(native(), frame.options);
}

PaddingWidget::PaddingWidget()
    : layout_(PaddingLayout::create())
{
    native().set_layout_manager(layout_);
}

void PaddingWidget::apply(const ui::Node& node)
{
    layout_->set(static_cast<const ui::PaddingNode&>(node).options);
}

StackWidget::StackWidget(Gtk::Orientation orientation)
    : orientation_(orientation)
    , layout_(Gtk::BoxLayout::create(orientation))
{
    native().set_layout_manager(layout_);
}

void StackWidget::apply(const ui::Node& node)
{
    const auto& options = static_cast<const ui::StackNode&>(node).options;
    layout_->set_spacing(static_cast<guint>(std::lround(options.spacing)));
    alignment_ = options.alignment;
    for (auto* child = native().get_first_child(); child; child = child->get_next_sibling())
        align(*child);
}

void StackWidget::place(ui::Widget& child, std::size_t index)
{
    Container::place(child, index);
    align(nativeOf(child));
}

// Across the stack: children that want all the room get it, the others stand where the stack says.
void StackWidget::align(Gtk::Widget& child) const
{
    const bool isRow = orientation_ == Gtk::Orientation::HORIZONTAL;
    const auto across = isRow ? Gtk::Orientation::VERTICAL : Gtk::Orientation::HORIZONTAL;
    auto place = Gtk::Align::CENTER;
    if (isExpanding(child, across))
        place = Gtk::Align::FILL;
    else if (alignment_ == ui::Alignment::leading || alignment_ == ui::Alignment::top)
        place = Gtk::Align::START;
    else if (alignment_ == ui::Alignment::trailing || alignment_ == ui::Alignment::bottom)
        place = Gtk::Align::END;
    isRow ? child.set_valign(place) : child.set_halign(place);

    if (dynamic_cast<SpacerRoom*>(&child)) // a spacer grows along its stack only
        isRow ? child.set_hexpand() : child.set_vexpand();
}

} // namespace gtk
