#pragma once

#include <gtkmm/box.h>
#include <gtkmm/headerbar.h>
#include <gtkmm/label.h>
#include <gtkmm/overlay.h>
#include <gtkmm/window.h>
#include <gtkmm/windowhandle.h>

namespace platform {
struct NSWindowDescription;
}

namespace gtk {

// What surrounds the views of a window beside those of the scene: its title bar, and its edges.
class PanelFrame {
public:
    // Fills `window`, which is not shown yet, with `content` as `description` says. Both must
    // outlive this.
    PanelFrame(Gtk::Window& window, Gtk::Widget& content,
        const platform::NSWindowDescription& description);

    // Gives up the content.
    ~PanelFrame();

    PanelFrame(const PanelFrame&) = delete;
    PanelFrame& operator=(const PanelFrame&) = delete;

private:
    void setUpBar(const platform::NSWindowDescription& description);

    Gtk::Window& window_;
    Gtk::HeaderBar bar_;
    Gtk::Label noTitle_;
    Gtk::Box noBar_; // keeps the toolkit from drawing a title bar of its own
    Gtk::WindowHandle handle_; // what it holds drags the window
    Gtk::Overlay layers_;
};

} // namespace gtk
