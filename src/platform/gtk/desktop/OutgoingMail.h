#pragma once

#include <giomm/file.h>
#include <vector>

namespace gtk {

// Opens a new message of the user's mail program with these files attached: through the desktop's
// portal, or where there is none through the program itself. A failure is logged.
void sendByMail(const std::vector<Glib::RefPtr<Gio::File>>& files);

} // namespace gtk
