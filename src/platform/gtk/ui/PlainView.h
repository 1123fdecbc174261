#pragma once

#include "platform/appkit/NSView.h"
#include "platform/gtk/ui/NativeView.h"

#include <gtkmm/box.h>

namespace gtk {

// A native view with nothing in it, through which clicks fall.
class PlainView final : public platform::NSView, public NativeView {
public:
    PlainView() { area_.set_can_target(false); }
    ~PlainView() override
    {
        if (area_.get_parent())
            area_.unparent();
    }

    platform::NSWindow* window() const override;
    Gtk::Widget& nativeWidget() override { return area_; }

private:
    Gtk::Box area_;
};

} // namespace gtk
