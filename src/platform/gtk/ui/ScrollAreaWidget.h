#pragma once

#include "platform/gtk/ui/Container.h"

#include <gtkmm/scrolledwindow.h>

namespace gtk {

class ScrollAreaWidget final : public Container {
public:
    ScrollAreaWidget();
    ~ScrollAreaWidget() override;

    Gtk::Widget& native() override { return scroller_; }
    void apply(const ui::Node& node) override;

private:
    bool scrollSideways(double dx, double dy);

    Gtk::ScrolledWindow scroller_;
    bool isHorizontal_ = false;
};

// Scrolls the nearest area around `widget` as far as needed to show all of it, once the widget has
// its place.
void scrollToVisible(Gtk::Widget& widget);

} // namespace gtk
