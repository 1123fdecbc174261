#pragma once

#include "platform/foundation/URL.h"

#include <giomm/appinfo.h>
#include <giomm/file.h>
#include <gtkmm/box.h>
#include <gtkmm/window.h>
#include <vector>

namespace gtk {

// A list of what can be done with files: open them in one of the programs that can, send them by
// e-mail, copy them. Desktops have no such list of their own.
class SharePanel {
public:
    // Shows itself over the window in use. Addresses of other schemes than "file" are left out.
    explicit SharePanel(const std::vector<platform::URL>& files);

private:
    void fill();
    void addHeading(const std::string& text);
    void addEntry(const Glib::RefPtr<const Gio::Icon>& icon, const std::string& text,
        std::function<void()> act);

    void open(const Glib::RefPtr<Gio::AppInfo>& program);
    void copy();

    std::vector<Glib::RefPtr<Gio::File>> files_;
    Gtk::Window window_;
    Gtk::Box entries_{Gtk::Orientation::VERTICAL};
};

} // namespace gtk
