#pragma once

#include <giomm/file.h>
#include <vector>

namespace gtk {

// Opens a new message of the user's mail program with these files attached, at least one. It asks
// the desktop's portal, or the program itself where there is no portal. A failure is logged.
void sendByMail(const std::vector<Glib::RefPtr<Gio::File>>& files);

} // namespace gtk
