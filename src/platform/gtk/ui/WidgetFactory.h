#pragma once

#include "platform/ui/Widget.h"

namespace gtk {

class FirstFrame;

// Makes a GTK widget for every kind of node.
class WidgetFactory final : public ui::Renderer {
public:
    // `firstFrame` is that of the window and must outlive the factory's widgets.
    explicit WidgetFactory(FirstFrame& firstFrame)
        : firstFrame_(firstFrame)
    {
    }

    std::unique_ptr<ui::Widget> makeWidget(const ui::Node& node) override;
    std::unique_ptr<ui::Widget> makeHost(ui::HostedView& hosted) override;

private:
    FirstFrame& firstFrame_;
};

} // namespace gtk
