#pragma once

#include "platform/gtk/ui/FirstFrame.h"
#include "platform/gtk/ui/ToolbarWidget.h"
#include "platform/gtk/ui/WidgetFactory.h"
#include "platform/ui/Mount.h"

#include <memory>

namespace gtk {

class GroupWidget;

// The declared views of one window, as GTK widgets. The window must have given up `widget()` before
// this goes.
class WindowContent {
public:
    explicit WindowContent(ui::View content);
    ~WindowContent();

    // Fills the window; made with the content.
    Gtk::Widget& widget();

    // To be packed into the window's bar.
    Toolbar& toolbar() { return toolbar_; }

    ui::Mount& mount() { return mount_; }

private:
    std::unique_ptr<GroupWidget> root_;
    FirstFrame firstFrame_;
    Toolbar toolbar_;
    WidgetFactory factory_;
    ui::Mount mount_;
};

} // namespace gtk
