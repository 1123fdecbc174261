#include "platform/gtk/ui/ScrollAreaWidget.h"

#include "platform/gtk/ui/Layouts.h"
#include "platform/ui/ViewNodes.h"

#include <algorithm>
#include <gtkmm/adjustment.h>
#include <gtkmm/eventcontrollerscroll.h>

namespace gtk {

namespace {

constexpr double wheelStep = 60; // points

void showRange(Gtk::Adjustment& adjustment, double start, double extent)
{
    const double value = adjustment.get_value();
    if (start < 0)
        adjustment.set_value(value + start);
    else if (start + extent > adjustment.get_page_size())
        adjustment.set_value(value + start + extent - adjustment.get_page_size());
}

void scrollNow(Gtk::Widget& widget)
{
    auto* area = dynamic_cast<Gtk::ScrolledWindow*>(widget.get_ancestor(GTK_TYPE_SCROLLED_WINDOW));
    if (!area)
        return;
    double x = 0;
    double y = 0;
    if (!widget.translate_coordinates(*area, 0, 0, x, y))
        return;
    showRange(*area->get_hadjustment(), x, widget.get_width());
    showRange(*area->get_vadjustment(), y, widget.get_height());
}

} // namespace

ScrollAreaWidget::ScrollAreaWidget()
{
    const auto layout = LayersLayout::create();
    layout->set(ui::Alignment::topLeading, ui::LayersNode::allChildren); // where reading begins
    area().set_layout_manager(layout);
    scroller_.set_child(area());
    const auto wheel = Gtk::EventControllerScroll::create();
    wheel->set_flags(Gtk::EventControllerScroll::Flags::BOTH_AXES);
    wheel->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
    wheel->signal_scroll().connect(sigc::mem_fun(*this, &ScrollAreaWidget::scrollSideways), false);
    scroller_.add_controller(wheel);
}

ScrollAreaWidget::~ScrollAreaWidget()
{
    scroller_.unset_child();
    if (scroller_.get_parent())
        scroller_.unparent();
}

void ScrollAreaWidget::apply(const ui::Node& node)
{
    const auto& options = static_cast<const ui::ScrollAreaNode&>(node).options;
    isHorizontal_ = options.axis == ui::Axis::horizontal;
    const auto along =
        options.showsIndicators ? Gtk::PolicyType::AUTOMATIC : Gtk::PolicyType::EXTERNAL;
    if (isHorizontal_)
        scroller_.set_policy(along, Gtk::PolicyType::NEVER);
    else
        scroller_.set_policy(Gtk::PolicyType::NEVER, along);
    scroller_.set_hexpand();
    scroller_.set_vexpand(!isHorizontal_);
}

// A plain wheel turns a strip that can only move sideways.
bool ScrollAreaWidget::scrollSideways(double dx, double dy)
{
    if (!isHorizontal_)
        return false;
    const auto adjustment = scroller_.get_hadjustment();
    adjustment->set_value(adjustment->get_value() + (dx != 0 ? dx : dy) * wheelStep);
    return true;
}

void scrollToVisible(Gtk::Widget& widget)
{
    // A place is known after the layout, which comes before the next tick but one.
    widget.add_tick_callback([&widget, ticks = 0](const auto&) mutable {
        if (ticks++ == 0)
            return true;
        scrollNow(widget);
        return false;
    });
}

} // namespace gtk
