#include "platform/gtk/ui/PopoverWidget.h"

#include "platform/ui/ViewNodes.h"

#include <gtkmm/binlayout.h>

namespace gtk {

PopoverWidget::PopoverWidget()
{
    place_.set_can_target(false);
    area().set_layout_manager(Gtk::BinLayout::create());
    popover_.set_child(area());
    popover_.set_parent(place_);
    popover_.set_position(Gtk::PositionType::BOTTOM);
    place_.signal_map().connect([this] { popover_.popup(); });
    popover_.signal_closed().connect([this] {
        const auto dismiss = onDismiss_; // which may take this widget away
        if (dismiss)
            dismiss();
    });
}

PopoverWidget::~PopoverWidget()
{
    onDismiss_ = nullptr; // going is no dismissal
    popover_.unset_child();
    popover_.unparent();
    if (place_.get_parent())
        place_.unparent();
}

void PopoverWidget::apply(const ui::Node& node)
{
    onDismiss_ = static_cast<const ui::PopoverNode&>(node).onDismiss;
}

} // namespace gtk
