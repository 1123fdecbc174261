#pragma once

#include "platform/gtk/ui/WindowContent.h"

#include <functional>
#include <gtkmm/window.h>
#include <string>

namespace gtk {

// The window of the application that is in use, or was last; null when there is none.
Gtk::Window* activeWindow();

// A small window around declared views.
class Panel {
public:
    struct Options {
        std::string title;
        bool isModal = true; // nothing can be done in the window below until this one is closed
        std::function<void()> onClose = {}; // Escape, or the close button; empty: hides the panel
    };

    // Shows itself over the window in use.
    Panel(Options options, const ui::View& content);
    ~Panel();

    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    void bringForward() { window_.present(); }
    void hide() { window_.set_visible(false); }

private:
    const Options options_;
    Gtk::Window window_;
    WindowContent content_; // goes first, while the window has its frames
};

} // namespace gtk
