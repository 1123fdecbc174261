#pragma once

#include "platform/ui/Widget.h"

namespace gtk {

class FirstFrame;
struct Toolbar;

// Makes a GTK widget for every kind of node.
class WidgetFactory final : public ui::Renderer {
public:
    // Both are those of the window, and must outlive the factory's widgets.
    WidgetFactory(FirstFrame& firstFrame, Toolbar& toolbar)
        : firstFrame_(firstFrame)
        , toolbar_(toolbar)
    {
    }

    std::unique_ptr<ui::Widget> makeWidget(const ui::Node& node) override;
    std::unique_ptr<ui::Widget> makeHost(ui::HostedView& hosted) override;

private:
    FirstFrame& firstFrame_;
    Toolbar& toolbar_;
};

} // namespace gtk
