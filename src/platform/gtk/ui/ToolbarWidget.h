#pragma once

#include "platform/gtk/ui/NativeWidget.h"

#include <gtkmm/box.h>

namespace gtk {

// Two places in the window's bar, which the described toolbar fills.
struct Toolbar {
    Gtk::Box leading{Gtk::Orientation::HORIZONTAL};
    Gtk::Box trailing{Gtk::Orientation::HORIZONTAL};
};

// Stands in the content for what it puts into the window's bar. The widget itself is invisible.
class ToolbarWidget final : public NativeWidget {
public:
    explicit ToolbarWidget(Toolbar& toolbar)
        : toolbar_(toolbar)
    {
        nothing_.set_visible(false);
    }
    ~ToolbarWidget() override;

    Gtk::Widget& native() override { return nothing_; }
    void apply(const ui::Node&) override { }
    void place(ui::Widget& child, std::size_t index) override;
    void remove(ui::Widget& child, std::shared_ptr<void> owner) override;

private:
    Toolbar& toolbar_;
    Gtk::Box nothing_;
};

} // namespace gtk
