#pragma once

#include "platform/foundation/Lifetime.h"
#include "platform/gtk/ui/NativeWidget.h"
#include "platform/ui/HostedView.h"

#include <memory>

namespace gtk {

class FirstFrame;

// The place of a native view. The view is put into it once and never taken out before both go.
class HostWidget final : public NativeWidget {
public:
    HostWidget(ui::HostedView& hosted, FirstFrame& firstFrame);
    ~HostWidget() override;

    Gtk::Widget& native() override { return area_; }
    void apply(const ui::Node&) override { }
    void setShown(bool isShown) override;

private:
    class Area final : public Gtk::Widget {
    public:
        Area();
    };

    void make();

    ui::HostedView& hosted_;
    Area area_;
    std::shared_ptr<platform::NSView> view_;
    bool isShown_ = true;
    platform::Lifetime lifetime_;
};

} // namespace gtk
