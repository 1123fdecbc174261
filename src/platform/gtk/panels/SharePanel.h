#pragma once

#include "platform/foundation/URL.h"
#include "platform/gtk/panels/Panel.h"

#include <giomm/appinfo.h>
#include <giomm/file.h>
#include <optional>
#include <vector>

namespace gtk {

// Finds out what can be done with files, and does what the user chooses.
class SharePanel {
public:
    // Shows itself over the window in use. Addresses of other schemes than "file" are left out.
    explicit SharePanel(const std::vector<platform::URL>& files);

private:
    ui::View content();
    void open(const Glib::RefPtr<Gio::AppInfo>& program);
    void copy();

    std::vector<Glib::RefPtr<Gio::File>> files_;
    std::optional<Panel> panel_; // absent when there is nothing to share
};

} // namespace gtk
