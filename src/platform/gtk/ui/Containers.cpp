#include "platform/gtk/ui/Containers.h"

#include "platform/ui/Node.h"

#include <cmath>
#include <gtkmm/binlayout.h>

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

GroupWidget::GroupWidget()
{
    native().set_layout_manager(Gtk::BinLayout::create());
}

void GroupWidget::apply(const ui::Node& node)
{
    const auto& group = static_cast<const ui::GroupNode&>(node);
    setTransition(group.transition);
    native().set_opacity(group.opacity);
    native().set_can_target(group.allowsHitTesting);
    native().set_can_focus(group.allowsHitTesting);

    // What cannot be seen is not read out either.
    gtk_accessible_update_state(GTK_ACCESSIBLE(native().gobj()), GTK_ACCESSIBLE_STATE_HIDDEN,
        static_cast<gboolean>(group.opacity <= 0), -1);
}

LayersWidget::LayersWidget()
    : layout_(LayersLayout::create())
{
    native().set_layout_manager(layout_);
}

void LayersWidget::apply(const ui::Node& node)
{
    const auto& layers = static_cast<const ui::LayersNode&>(node);
    layout_->set(layers.alignment, layers.base);
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
    : layout_(Gtk::BoxLayout::create(orientation))
{
    native().set_layout_manager(layout_);
}

void StackWidget::apply(const ui::Node& node)
{
    const auto& stack = static_cast<const ui::StackNode&>(node);
    layout_->set_spacing(static_cast<guint>(std::lround(stack.spacing)));
}

} // namespace gtk
