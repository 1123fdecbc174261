#pragma once

#include "platform/gtk/ui/Container.h"

#include <functional>
#include <gtkmm/box.h>
#include <gtkmm/popover.h>

namespace gtk {

// A panel that points at the view it lies over. It opens when that is on screen.
class PopoverWidget final : public Container {
public:
    PopoverWidget();
    ~PopoverWidget() override;

    Gtk::Widget& native() override { return place_; }
    void apply(const ui::Node& node) override;

private:
    Gtk::Box place_; // what the panel points at, with nothing in it that could be seen
    Gtk::Popover popover_;
    std::function<void()> onDismiss_;
};

} // namespace gtk
