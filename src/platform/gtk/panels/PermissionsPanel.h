#pragma once

#include "platform/gtk/foundation/Permission.h"

#include <gtkmm/box.h>
#include <gtkmm/window.h>
#include <vector>

namespace gtk {

// What the user lets the application do, to be checked and unchecked. Desktops have no such list
// for programs that run outside a sandbox.
class PermissionsPanel {
public:
    struct Entry {
        std::string title;
        std::string explanation;
        Permission& permission; // must outlive the panel
    };

    // Shows itself over the window in use.
    explicit PermissionsPanel(const std::vector<Entry>& entries);

private:
    void addEntry(const Entry& entry);

    Gtk::Window window_;
    Gtk::Box entries_{Gtk::Orientation::VERTICAL};
};

} // namespace gtk
